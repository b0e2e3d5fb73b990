// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

/// The library's one category, "zev.globalutils": hosts filter it with Qt's logging rules.
Q_DECLARE_LOGGING_CATEGORY(zevLog)
