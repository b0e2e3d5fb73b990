// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/TrackSearch.h>

#include <QStyledItemDelegate>

/// Draws a table's cells with the matches of a search marked in them. A match that is hidden behind the
/// ellipsis of a cell that is too narrow marks the ellipsis.
class MatchHighlightDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit MatchHighlightDelegate(const TrackSearch *search, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// One line, unit for unit as long as the cell's text, so that ranges hold: breaks and tabs show as
    /// arrows.
    QString displayText(const QVariant &value, const QLocale &locale) const override;

    /// Where \a matches lie in \a visible, which is \a text or a beginning of it that ends in an ellipsis.
    static TrackSearch::CellMatches visibleMatches(const TrackSearch::CellMatches &matches,
                                                   const QString &text, const QString &visible);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const TrackSearch *m_search;
};
