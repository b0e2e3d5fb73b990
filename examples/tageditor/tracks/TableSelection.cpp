// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TableSelection.h>

#include <tageditor/tracks/TrackInfo.h>

#include <QItemSelectionModel>

#include <algorithm>

namespace {

/// Which columns of each row are selected, a bit each: ranges may overlap, and hold many thousands of rows.
std::vector<quint32> selectedColumns(const QItemSelectionModel &selection)
{
    static_assert(TrackFieldCount + TrackFactCount <= 32);
    std::vector<quint32> columns(size_t(selection.model()->rowCount()));
    for (const QItemSelectionRange &range : selection.selection()) {
        for (int column = range.left(); column <= range.right(); ++column) {
            for (int row = range.top(); row <= range.bottom(); ++row)
                columns[size_t(row)] |= 1U << column;
        }
    }
    return columns;
}

bool hasEditableCell(const QItemSelectionRange &range, const TrackTableModel &model)
{
    for (int row = range.top(); row <= range.bottom(); ++row) {
        for (int column = range.left(); column <= range.right(); ++column) {
            if (model.isEditable(row, TrackField(column)))
                return true;
        }
    }
    return false;
}

} // namespace

TableSelection::Cells TableSelection::editableCells(const QItemSelectionModel &selection,
                                                    const TrackTableModel &model)
{
    Cells cells;
    const std::vector<quint32> columns = selectedColumns(selection);
    for (int row = 0; row < model.rowCount(); ++row) {
        const Track &track = model.track(row);
        for (int column = 0; columns[size_t(row)] >> column != 0; ++column) {
            const TrackField field{column};
            if ((columns[size_t(row)] >> column & 1U) != 0 && model.isEditable(row, field))
                cells.append({track.id, field, track.text(field)});
        }
    }
    return cells;
}

bool TableSelection::hasEditableCell(const QItemSelectionModel &selection, const TrackTableModel &model)
{
    return std::ranges::any_of(selection.selection(), [&model](const QItemSelectionRange &range) {
        return ::hasEditableCell(range, model);
    });
}

QList<int> TableSelection::rows(const QItemSelectionModel &selection)
{
    QList<int> rows;
    const std::vector<quint32> columns = selectedColumns(selection);
    for (size_t row = 0; row < columns.size(); ++row) {
        if (columns[row] != 0)
            rows.append(int(row));
    }
    return rows;
}
