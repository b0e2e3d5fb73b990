// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

class QItemSelectionModel;

/// What the user has selected in the table of tracks.
namespace TableSelection {

/// A text in the table that may be changed is named as a change to what it is already.
using Cells = QList<TextChange>;

/// In the order of the table, row by row.
Cells editableCells(const QItemSelectionModel &selection, const TrackTableModel &model);
bool hasEditableCell(const QItemSelectionModel &selection, const TrackTableModel &model);

/// Those with a selected cell, from the top.
QList<int> rows(const QItemSelectionModel &selection);

} // namespace TableSelection
