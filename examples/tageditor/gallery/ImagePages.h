// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Stencils with every shared trait, on light and on dark.
QWidget *stencilsPage(QWidget *parent);

/// Pictures fitted in every way, and drawn in three and nine parts.
QWidget *pictureFittingPage(QWidget *parent);
