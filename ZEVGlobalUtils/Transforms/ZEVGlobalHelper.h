// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

/// Where every user-visible text of the library comes from.
class ZEV_EXPORT ZEVGlobalHelper {
public:
    ZEVGlobalHelper() = delete;

    /// The text for an English wording in the user's language; a key without one comes back unchanged.
    /// Any thread.
    static QString localizedStringForKey(QStringView key);
};
