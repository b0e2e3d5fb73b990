// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

/// The full case mappings of Unicode, which may change a text's length ("ß" to "SS"). \a localeIdentifier is
/// one of ZEVTextLocale, or empty for the mappings that hold in no special language, whatever the user's is.
/// Halves of surrogate pairs that stand alone stay as they are. Any thread.
namespace ZEVCaseMapping {

/// Text that is built up piece by piece, without memory of its own while it is as short as titles are.
using Buffer = QVarLengthArray<char16_t, 256>;

inline QStringView view(const Buffer &buffer) { return {buffer.data(), buffer.size()}; }
inline void append(Buffer &result, QStringView text) { result.append(text.utf16(), text.size()); }

/// How the units of a text that is appended are mapped. Capitalized takes the text for one word: its first
/// letter, digit or symbol in title case ("1ST" gives "1st"), all after it in lower case. Folded texts are
/// the same when they differ in case alone, in no language: both "ß" and "SS" give "ss".
enum class Form { Lower, Upper, Capitalized, Folded };

void append(Buffer &result, QStringView text, Form form, const QByteArray &localeIdentifier = {});

QString lowerCased(QStringView text, const QByteArray &localeIdentifier = {});
QString upperCased(QStringView text, const QByteArray &localeIdentifier = {});
QString caseFolded(QStringView text);

} // namespace ZEVCaseMapping
