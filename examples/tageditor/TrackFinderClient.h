// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/Track.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>

#include <vector>

class TrackTableModel;

/// Offers the text of the table's cells to a finder, row by row: every cell that is not empty is a piece.
///
/// A piece covers one unit more than its text. So a match of no length at the end of a cell (of "$", say)
/// has another place than one at the beginning of the next cell.
class TrackFinderClient : public ZEVTextFinderClient {
public:
    /// A stretch of a cell's text.
    struct Place {
        int row = 0;
        TrackField field = TrackField::FileName;
        ZEVRange range;

        friend bool operator==(const Place &, const Place &) = default;
    };

    explicit TrackFinderClient(const TrackTableModel &model);

    /// To be called when rows were added behind the others, or all are new or elsewhere. Ranges that were
    /// found before rows were added stay good.
    void takeInNewRows();
    void startOver();

    qsizetype stringLength() const override { return m_rowEnds.empty() ? 0 : m_rowEnds.back(); }
    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override;

    /// The cell's share of the whole text; of length 0 for an empty cell.
    ZEVRange rangeOfCell(int row, TrackField field) const;

    /// Where \a range, which must lie within one piece, stands in the table.
    Place placeOfRange(const ZEVRange &range) const;

private:
    int rowAtIndex(qsizetype index) const;
    qsizetype startOfRow(int row) const { return row == 0 ? 0 : m_rowEnds[size_t(row) - 1]; }

    const TrackTableModel &m_model;
    std::vector<qsizetype> m_rowEnds; ///< the length of all text up to the end of each row
};
