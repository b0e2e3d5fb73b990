// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QMenu;
class QTableView;

/// Which columns a table shows, in which order and how wide: the user chooses by a menu and by dragging, and
/// finds it so again.
namespace TableColumns {

/// Makes \a menu offer the columns whenever it opens, and the header pop it up.
void setMenu(QTableView *table, QMenu *menu);

/// Arranges the columns as they were left, or as they are at first. False when no widths of the user's are remembered.
bool restore(QTableView *table);
void remember(const QTableView *table, bool hasOwnWidths);

/// The column that takes what room is left; -1 where none is shown.
int lastShown(const QTableView *table);

} // namespace TableColumns
