// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// What each transform of the Text menu makes of texts that are hard to re-case.
QWidget *textTransformsPage(QWidget *parent);
