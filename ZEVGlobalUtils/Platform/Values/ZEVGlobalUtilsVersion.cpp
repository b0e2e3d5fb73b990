// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalUtilsVersion.h>

const double ZEVGlobalUtilsVersionNumber = 1.0;
const char ZEVGlobalUtilsVersionString[] = "@(#)PROGRAM:ZEVGlobalUtils  PROJECT:ZEVGlobalUtils-1\n";
