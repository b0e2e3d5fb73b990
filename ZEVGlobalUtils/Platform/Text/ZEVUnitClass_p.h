// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <unicode/uniset.h>

#include <bitset>

/// A class of characters as expressions know it, made to be asked unit by unit.
class ZEVUnitClass {
public:
    /// Of a set of characters in ICU's notation; with all their case variants where \a foldsCase.
    explicit ZEVUnitClass(const char16_t *pattern, bool foldsCase = false);

    /// \d, \w or \s: decimal digits, the characters of words (with marks, connectors and joiners), white space.
    /// Nil for another letter.
    static const ZEVUnitClass *forLetter(char16_t letter);

    /// Whether a word begins or ends there, as \b has it.
    static bool isWordBoundary(QStringView text, qsizetype position);

    /// Whether the unit belongs to a character of the class. A lone surrogate is a character.
    bool containsUnitAt(QStringView text, qsizetype position) const
    {
        const char16_t unit = text.utf16()[position];
        return QChar::isSurrogate(unit) ? containsSurrogateAt(text, position) : m_units[unit];
    }

    /// A bit for each of the 64 units from \a from on; none for those behind the text's end.
    quint64 bitsAt(QStringView text, qsizetype from) const;

private:
    bool containsSurrogateAt(QStringView text, qsizetype position) const;

    icu::UnicodeSet m_characters;
    std::bitset<0x10000> m_units;
    ZEVTextScan::AsciiRanges m_ascii;
};
