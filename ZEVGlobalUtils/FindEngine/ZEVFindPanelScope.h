// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

#include <memory>
#include <optional>

/// Names the part of the host's data that a query searches; what it selects is the host's business. A scope
/// equals only itself, so it is held by std::shared_ptr.
class ZEV_EXPORT ZEVFindPanelScope {
public:
    explicit ZEVFindPanelScope(const std::optional<QString> &title = std::nullopt)
        : m_title(title)
    {
    }
    virtual ~ZEVFindPanelScope();
    Q_DISABLE_COPY_MOVE(ZEVFindPanelScope)

    const std::optional<QString> &title() const { return m_title; }
    void setTitle(const std::optional<QString> &title) { m_title = title; }

    /// Kept: identity, so that a copy is another scope.
    bool isEqualToScope(const ZEVFindPanelScope &other) const { return this == &other; }
    virtual std::shared_ptr<ZEVFindPanelScope> copy() const;

private:
    std::optional<QString> m_title;
};
