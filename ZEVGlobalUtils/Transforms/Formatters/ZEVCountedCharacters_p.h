// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <array>

/// What of a text counts when it is scored: letters that have a case, without their accents, and the space.
namespace ZEVCountedCharacters {

/// What counts of a character, or 0. Kept: title-case letters and letters of no case do not, nor do digits.
char32_t countedCharacter(char32_t character);

/// countedCharacter() of the first 8192 characters, which hold nearly all that have a case.
using Table = std::array<char16_t, 0x2000>;
const Table &firstCharacters();

/// A pair that decomposes has no case, so what counts of a pair is the pair itself, or nothing.
template <typename Keep>
void keepPair(QStringView string, qsizetype position, Keep keep)
{
    if (!countedCharacter(QChar::surrogateToUcs4(string[position], string[position + 1])))
        return;
    keep(string[position].unicode(), position);
    keep(string[position + 1].unicode(), position);
}

/// Calls \a keep with each UTF-16 unit that counts and with where its character begins. Decomposing character
/// by character does: reordering moves only marks, and no character has two letters with a case.
template <typename Keep>
void forEachUnit(QStringView string, Keep keep)
{
    const Table &table = firstCharacters();
    for (qsizetype i = 0; i < string.size(); ++i) {
        const char16_t unit = string[i].unicode();
        if (QChar::isHighSurrogate(unit) && i + 1 < string.size() && string[i + 1].isLowSurrogate())
            keepPair(string, i++, keep);
        else if (const char32_t counted = unit < table.size() ? table[unit] : countedCharacter(unit))
            keep(char16_t(counted), i);
    }
}

} // namespace ZEVCountedCharacters
