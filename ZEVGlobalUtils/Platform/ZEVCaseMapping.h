// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>
#include <QString>

/// The full case mappings of Unicode, which may change a text's length ("ß" to "SS"). \a localeIdentifier is
/// one of ZEVTextLocale, or empty for the mappings that hold in no special language, whatever the user's is.
/// Halves of surrogate pairs that stand alone stay as they are. Any thread.
namespace ZEVCaseMapping {

/// How the units of a text that is appended are mapped. Capitalized takes the text for one word: its first
/// letter, digit or symbol in title case ("1ST" gives "1st"), all after it in lower case.
enum class Form { Lower, Upper, Capitalized };

ZEV_EXPORT void append(QString &result, QStringView text, Form form, const QByteArray &localeIdentifier = {});

ZEV_EXPORT QString lowerCased(QStringView text, const QByteArray &localeIdentifier = {});
ZEV_EXPORT QString upperCased(QStringView text, const QByteArray &localeIdentifier = {});

} // namespace ZEVCaseMapping
