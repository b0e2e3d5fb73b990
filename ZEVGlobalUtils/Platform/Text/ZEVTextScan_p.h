// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <array>
#include <bit>
#include <span>

/// Looks at 64 UTF-16 units at once. Each instruction set has its own code, chosen when the process starts;
/// the plain one says what all of them answer.
namespace ZEVTextScan {

enum class Code { Plain, Sse2, Avx2 };

constexpr qsizetype BlockSize = 64;

/// What one call looks at: whoever makes it may have to end between two.
constexpr qsizetype LongestStretch = 1 << 16;

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

    /// The one bit in which the first two differ; 0 where it is not one.
    char16_t bit() const
    {
        const unsigned difference = units[0] ^ units[1];
        return std::has_single_bit(difference) ? char16_t(difference) : char16_t(0);
    }

    /// Whether all of them are the first one, apart from a bit.
    bool isOneBut(char16_t bit) const { return count <= (bit ? 2 : 1); }
};

/// Two units of a literal, by their offsets from where it begins: below 64, and possibly the same one. Or,
/// where \a instead has any, one of those alone.
struct Anchors {
    std::array<Units, 2> units;
    std::array<qsizetype, 2> offsets{};
    Units instead{};
    qsizetype insteadOffset = 0;

    /// How they are compared: with one unit, with two that differ in one bit, or with any.
    enum class Form { One, Bit, Any };
    Form form = Form::Any;
    qsizetype reach = 0; ///< the last offset
    qsizetype leastReach = 0; ///< the last one of what may stand alone

    /// Sets the form and what follows from the others, once they are final.
    void prepare();
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

/// Where to go on, and how many blocks were found.
struct Progress {
    qsizetype position = 0;
    size_t count = 0;
};

/// The blocks with a position at which the anchors fit, in their order, from \a from on. There may be more than
/// \a blocks takes; there are none behind the text's end, which is the position of a search that is over.
Progress findBlocks(const Anchors &anchors, QStringView text, qsizetype from, std::span<Block> blocks,
                    Code code = supportedCodes().back());

/// Which of 64 units lie in the ranges, and which are no ASCII; none of those behind the text's end.
struct Classes {
    quint64 inRanges = 0;
    quint64 foreign = 0;
};
Classes classesAt(const AsciiRanges &ranges, QStringView text, qsizetype from,
                  Code code = supportedCodes().back());

} // namespace ZEVTextScan
