// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Pictures that are stored turned or in other colours, and look like all others.
QWidget *uprightPage(QWidget *parent);
