// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>

class QLocale;

/// The names by which ICU knows locales.
namespace ZEVTextLocale {

/// English for the C locale: ICU's own idea of it breaks words and formats dates for machines.
ZEV_EXPORT QByteArray identifier(const QLocale &locale);

/// That of QLocale(), which a host may set anew at any time. Stays valid until the same thread asks again.
/// Any thread.
ZEV_EXPORT const QByteArray &userIdentifier();

/// That of dates: LC_TIME's (POSIX), unless the host has set another locale than the system's. Any thread.
ZEV_EXPORT QByteArray dateIdentifier();

} // namespace ZEVTextLocale
