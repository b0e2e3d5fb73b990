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

    /// A bit for each of the 64 units from \a from on.
    quint64 bitsAt(QStringView text, qsizetype from) const;

private:
    explicit ZEVUnitClass(const char16_t *pattern);

    icu::UnicodeSet m_characters;
    std::bitset<0x10000> m_units;
    ZEVTextScan::AsciiRanges m_ascii;
};

/// Goes from run to run of a class, keeping the bits of where it is.
class ZEVClassRuns {
public:
    void setText(QStringView text);

    /// Where the first longest run begins, and ends, of those that begin at or after \a from; the end of the
    /// text for none. Positions only grow.
    qsizetype next(const ZEVUnitClass &unitClass, qsizetype from);
    qsizetype end() const { return m_end; }

private:
    qsizetype firstFrom(const ZEVUnitClass &unitClass, qsizetype from, bool isIn);

    QStringView m_text;
    ZEVTextScan::Block m_block;
    qsizetype m_end = 0;
    bool m_isRead = false;
};
