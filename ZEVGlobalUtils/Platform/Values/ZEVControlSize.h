// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

/// How large a control is drawn.
enum class ZEVControlSize {
    Regular = 0,
    Small = 1,
    Mini = 2,
    Large = 3,
    ExtraLarge = 4,
};
