// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// The find bar above an editor, with and without its replace row, and the query panel.
QWidget *findInterfacesPage(QWidget *parent);
