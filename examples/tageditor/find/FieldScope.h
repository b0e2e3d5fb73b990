// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelSharedScope.h>

/// Searches some fields of the tracks. There is one of each kind.
class FieldScope : public ZEVFindPanelSharedScope {
    Q_OBJECT

public:
    FieldScope(const QString &title, QList<int> columns);

    /// All fields, then each.
    static const QList<std::shared_ptr<ZEVFindPanelScope>> &all();

    /// Empty for all.
    const QList<int> &columns() const { return m_columns; }

private:
    QList<int> m_columns;
};
