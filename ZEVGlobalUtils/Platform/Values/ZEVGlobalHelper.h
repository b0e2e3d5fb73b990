// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

/// Where every user-visible text of the library comes from.
class ZEV_EXPORT ZEVGlobalHelper {
public:
    ZEVGlobalHelper() = delete;

    /// The text for an English wording in the user's language; a key without one comes back unchanged. The
    /// table is chosen once, by the languages of QLocale() at the first call, so a host sets its default
    /// locale before. Any thread.
    static QString localizedStringForKey(QStringView key);
};
