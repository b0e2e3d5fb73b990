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

/// False when nothing that fits is remembered.
bool restore(QTableView *table);
void remember(const QTableView *table);

} // namespace TableColumns
