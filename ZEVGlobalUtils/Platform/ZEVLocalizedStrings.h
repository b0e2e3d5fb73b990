// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

/// The library's own texts in the user's language, looked up by their English wording.
namespace ZEVLocalizedStrings {

/// A key without a text in the table comes back unchanged. The table is chosen once, by the languages of
/// QLocale() at the first call, so a host sets its default locale before. Any thread.
ZEV_EXPORT QString localizedString(QStringView key);

} // namespace ZEVLocalizedStrings
