// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

/// The version as the library's binary carries it, for `strings` and `what`.
ZEV_EXPORT extern const double ZEVGlobalUtilsVersionNumber;
ZEV_EXPORT extern const char ZEVGlobalUtilsVersionString[];
