// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Widgets that fit into others, keep to their middle, or have too little room for it, and a popover.
QWidget *layoutPage(QWidget *parent);
