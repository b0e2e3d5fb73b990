// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/MatchHighlightDelegate.h>

#include <tageditor/MatchColors.h>
#include <tageditor/TrackSearch.h>
#include <tageditor/TrackTableModel.h>

MatchHighlightDelegate::MatchHighlightDelegate(const TrackSearch *search, QObject *parent)
    : HighlightDelegate(parent)
    , m_search(search)
{
}

CellMatches MatchHighlightDelegate::matches(const QModelIndex &index) const
{
    return m_search->matchesInCell(index.row(), TrackField(index.column()));
}

void MatchHighlightDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    HighlightDelegate::initStyleOption(option, index);
    if (!index.data(TrackTableModel::IsUnreadableRole).toBool())
        return;
    option->font.setItalic(true);
    option->palette.setColor(QPalette::Text, MatchColors::dimmedText(option->palette));
}
