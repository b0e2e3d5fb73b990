// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <QString>

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

    /// Where the match ends that begins at \a start; nil where there is none.
    std::optional<qsizetype> endOfMatch(QStringView text, qsizetype start) const;

    /// One of these stands wherever a match begins: the two rarest units of those that stand at their offset
    /// unless a character folds to several, or the first that does.
    ZEVTextScan::Anchors anchors() const;

    qsizetype length() const { return qsizetype(m_units.size()); }

private:
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
    size_t expansionsAtFirstOffset() const;
    const Expansion *expansionAt(size_t offset, char16_t unit) const;

    std::u16string m_text; ///< folded where case does not count
    std::vector<ZEVTextScan::Units> m_units; ///< for every unit of it
    std::vector<Expansion> m_expansions; ///< by their offsets
};
