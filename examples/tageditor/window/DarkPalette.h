// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

/// Light on dark for desktops that offer no such theme.
QPalette darkPalette();
