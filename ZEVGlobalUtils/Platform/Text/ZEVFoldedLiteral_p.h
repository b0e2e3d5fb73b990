// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <QString>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

/// A literal text with all that matches it: where case does not count, a text matches whose full case folding
/// (Unicode, chapter 3.13, without the Turkic rules) is that of the literal, and no character's folding may
/// reach beyond it. So "kiss" is found in "KIẞ", but "kis" is not.
class ZEVFoldedLiteral {
public:
    enum class Extent { Whole, Beginning };

    /// Nil for what is left to the general matcher: lone surrogates, and characters with many variants or
    /// such of another length. A beginning of something longer is shortened until no single character can
    /// fold to several of its own or to some of what follows too.
    static std::optional<ZEVFoldedLiteral> make(const QString &literal, bool caseInsensitive, Extent extent);

    /// Where the match ends that begins at \a start; -1 where there is none.
    qsizetype endOfMatch(QStringView text, qsizetype start) const
    {
        const qsizetype end = start + length();
        if (!m_words.empty() && end <= text.size() && areWordsAt(text.utf16() + start))
            return end;
        return m_isAllWords ? -1 : endOfRareMatch(text, start);
    }

    /// Whether all matches are of its length() and begin where isWholeAt() says so.
    bool isFixed() const { return m_isAllWords; }

    /// For one that is fixed, in a text that goes on for its length: without a branch, which where matches are
    /// common would often be guessed wrong.
    bool isWholeAt(const char16_t *text) const { return areWordsAt(text); }

    /// One of these stands wherever a match begins: the two rarest units of those that stand at their offset
    /// unless a character folds to several, or the first that does.
    ZEVTextScan::Anchors anchors() const;

    qsizetype length() const { return qsizetype(m_units.size()); }

private:
    static constexpr size_t WordSize = 4;

    /// Units that are compared at once, and the bit in which each may differ.
    struct Word {
        qsizetype offset = 0;
        std::array<char16_t, WordSize> bits{};
        std::array<char16_t, WordSize> units{};
    };

    /// A character that stands for several units of the literal.
    struct Expansion {
        size_t offset;
        char16_t unit;
        size_t length;
    };

    bool addUnits(const QString &literal);
    bool addVariants(char32_t character);
    void addExpansions();
    void shorten();
    void makeWords();
    size_t expansionsAtFirstOffset() const;
    const Expansion *expansionAt(size_t offset, char16_t unit) const;

    qsizetype endOfRareMatch(QStringView text, qsizetype start) const;

    bool areWordsAt(const char16_t *text) const
    {
        const auto number = [](const char16_t *units) {
            quint64 read = 0;
            std::memcpy(&read, units, sizeof(read));
            return read;
        };
        quint64 difference = 0;
        for (const Word &word : m_words)
            difference |= (number(text + word.offset) | number(word.bits.data())) ^ number(word.units.data());
        return difference == 0;
    }

    std::u16string m_text; ///< folded where case does not count
    std::vector<ZEVTextScan::Units> m_units; ///< for every unit of it
    std::vector<Expansion> m_expansions; ///< by their offsets
    std::vector<Word> m_words; ///< none for a short literal
    bool m_isAllWords = false; ///< nothing else matches
};
