// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

/// The version as the library's binary carries it, for `strings` and `what`.
inline constexpr double ZEVGlobalUtilsVersionNumber = 1.0;
inline constexpr char ZEVGlobalUtilsVersionString[] =
    "@(#)PROGRAM:ZEVGlobalUtils  PROJECT:ZEVGlobalUtils-1\n";
