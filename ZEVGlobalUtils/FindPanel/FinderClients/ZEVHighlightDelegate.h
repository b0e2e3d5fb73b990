// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVCellMatches.h>

#include <QStyledItemDelegate>

/// Draws a view's cells with stretches of their texts marked. A stretch that is hidden behind the ellipsis of
/// a cell that is too narrow marks the ellipsis.
class ZEV_EXPORT ZEVHighlightDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// QList<ZEVRange>: what a model wants marked in its text.
    static constexpr int RangesRole = Qt::UserRole + 100;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// One line, unit for unit as long as the cell's text, so that ranges hold: breaks and tabs show as
    /// arrows.
    QString displayText(const QVariant &value, const QLocale &locale) const override;

    /// Where \a matches lie in \a visible, which is \a text or a beginning of it that ends in an ellipsis.
    static ZEVCellMatches visibleMatches(const ZEVCellMatches &matches, const QString &text,
                                         const QString &visible);

protected:
    /// What to mark: the model's ranges.
    virtual ZEVCellMatches matches(const QModelIndex &index) const;
};
