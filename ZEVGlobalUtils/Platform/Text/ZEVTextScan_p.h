// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <array>
#include <span>

/// Looks at 64 UTF-16 units at once. Each instruction set has its own code, chosen when the process starts;
/// the plain one says what all of them answer.
namespace ZEVTextScan {

enum class Code { Plain, Sse2, Avx2 };

/// What this processor knows, the best last.
std::span<const Code> supportedCodes();

/// Up to four units that stand for each other.
struct Units {
    std::array<char16_t, 4> units{}; ///< those beyond the count repeat the last
    int count = 0;

    void add(char16_t unit);
    bool contains(char16_t unit) const
    {
        return unit == units[0] || unit == units[1] || unit == units[2] || unit == units[3];
    }
};

/// Two units of a literal, by their offsets from where it begins: below 64, and possibly the same one. Or,
/// where \a instead has any, one of those alone.
struct Anchors {
    std::array<Units, 2> units;
    std::array<qsizetype, 2> offsets{};
    Units instead{};
    qsizetype insteadOffset = 0;
};

/// Ranges of ASCII, both ends included; those beyond the count repeat the last.
struct AsciiRanges {
    std::array<char16_t, 4> first{};
    std::array<char16_t, 4> last{};
    int count = 0;

    void add(char16_t rangeFirst, char16_t rangeLast);
};

/// 64 positions of a text, and a bit for each; bits of positions beyond the text are 0.
struct Block {
    qsizetype begin = 0;
    quint64 bits = 0; ///< the lowest for the position \a begin
};

/// The first block at or after \a from with a position at which the anchors fit; one without bits at
/// the end of the text where there is none.
Block nextBlock(const Anchors &anchors, QStringView text, qsizetype from,
                Code code = supportedCodes().back());

/// Which of 64 units lie in the ranges, and which are no ASCII.
struct Classes {
    quint64 inRanges = 0;
    quint64 foreign = 0;
};
Classes classesAt(const AsciiRanges &ranges, QStringView text, qsizetype from,
                  Code code = supportedCodes().back());

} // namespace ZEVTextScan
