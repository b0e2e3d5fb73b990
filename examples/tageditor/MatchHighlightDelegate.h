// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/ZEVHighlightDelegate.h>

class TrackSearch;

/// Draws the cells of the table of tracks with the matches of a search marked in them.
class MatchHighlightDelegate : public ZEVHighlightDelegate {
    Q_OBJECT

public:
    explicit MatchHighlightDelegate(const TrackSearch *search, QObject *parent = nullptr);

protected:
    ZEVCellMatches matches(const QModelIndex &index) const override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const TrackSearch *m_search;
};
