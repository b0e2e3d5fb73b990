// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>

/// Searches some fields of the tracks. There is one of each kind, which is its own copy: two queries with it
/// mean the same.
class FieldScope : public ZEVFindPanelScope, public std::enable_shared_from_this<FieldScope> {
public:
    FieldScope(const QString &title, QList<int> columns);

    /// All fields, then each.
    static const QList<std::shared_ptr<FieldScope>> &all();

    /// Empty for all.
    const QList<int> &columns() const { return m_columns; }

    std::shared_ptr<ZEVFindPanelScope> copy() const override;

private:
    QList<int> m_columns;
};
