// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/MatchHighlightDelegate.h>

#include <tageditor/TrackSearch.h>
#include <tageditor/TrackTableModel.h>

#include <ZEVGlobalUtils/FindPanel/ZEVMatchColors.h>

MatchHighlightDelegate::MatchHighlightDelegate(const TrackSearch *search, QObject *parent)
    : ZEVHighlightDelegate(parent)
    , m_search(search)
{
}

ZEVCellMatches MatchHighlightDelegate::matches(const QModelIndex &index) const
{
    return m_search->matchesInCell(index.row(), TrackField(index.column()));
}

void MatchHighlightDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    ZEVHighlightDelegate::initStyleOption(option, index);
    if (!index.data(TrackTableModel::IsUnreadableRole).toBool())
        return;
    option->font.setItalic(true);
    option->palette.setColor(QPalette::Text, ZEVMatchColors::dimmedText(option->palette));
}
