// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Menus that stand open: every kind and state of item, one of them under the pointer, with and without
/// columns for icons and check marks.
QWidget *menuItemsPage(QWidget *parent);
