// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVStartupNotification_p.h>

QByteArray ZEVStartupNotification::begin(const QByteArray &, const QByteArray &, const QByteArray &)
{
    return {};
}

void ZEVStartupNotification::cancel(const QByteArray &) { }
