// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QObject>

#include <memory>
#include <optional>

/// Names the part of the host's data that a query searches; what it selects is the host's business. A scope
/// equals only itself, so it is held by std::shared_ptr. (See ZEVFindPanelSharedScope.)
class ZEV_EXPORT ZEVFindPanelScope : public QObject {
    Q_OBJECT
    Q_PROPERTY(std::optional<QString> title READ title WRITE setTitle NOTIFY titleChanged)

public:
    explicit ZEVFindPanelScope(const std::optional<QString> &title = std::nullopt)
        : m_title(title)
    {
    }
    ~ZEVFindPanelScope() override;

    const std::optional<QString> &title() const { return m_title; }
    void setTitle(const std::optional<QString> &title);

    /// Kept: identity, so that a copy is another scope.
    bool isEqualToScope(const ZEVFindPanelScope &other) const { return this == &other; }
    virtual std::shared_ptr<ZEVFindPanelScope> copy() const;

Q_SIGNALS:
    void titleChanged();

private:
    std::optional<QString> m_title;
};
