// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QTableView;

/// Which columns a table shows, in which order and how wide: the user chooses by the header's menu and by
/// dragging, and finds it so again.
namespace TableColumns {

void addMenu(QTableView *table);

/// False when nothing that fits is remembered.
bool restore(QTableView *table);
void remember(const QTableView *table);

} // namespace TableColumns
