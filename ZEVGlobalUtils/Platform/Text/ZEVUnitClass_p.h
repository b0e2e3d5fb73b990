// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <unicode/uniset.h>

#include <bitset>

/// One of the classes \d, \w and \s as expressions know them: decimal digits, the characters of words (with
/// marks, connectors and joiners), white space.
class ZEVUnitClass {
public:
    /// Nil for another letter.
    static const ZEVUnitClass *forLetter(char16_t letter);

    /// Whether the unit belongs to a character of the class; a lone surrogate never does.
    bool containsUnitAt(QStringView text, qsizetype position) const;

    /// A bit for each of the 64 units from \a from on; none for those behind the text's end.
    quint64 bitsAt(QStringView text, qsizetype from) const;

private:
    explicit ZEVUnitClass(const char16_t *pattern);

    icu::UnicodeSet m_characters;
    std::bitset<0x10000> m_units;
    ZEVTextScan::AsciiRanges m_ascii;
};
