// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>

/// Draws the cells of the table, and lets their texts be edited with a mark that shows where a value ends. The
/// rows with a selected cell, whose tags the inspector shows, are tinted; where no tags could be read stands why.
class TrackDelegate : public ZEVMatchHighlightDelegate {
    Q_OBJECT

public:
    using ZEVMatchHighlightDelegate::ZEVMatchHighlightDelegate;

    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
