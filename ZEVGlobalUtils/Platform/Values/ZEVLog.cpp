// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

Q_LOGGING_CATEGORY(zevLog, "zev.globalutils")
