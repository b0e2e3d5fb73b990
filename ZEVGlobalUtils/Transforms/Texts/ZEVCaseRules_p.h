// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules.h>

#include <QSet>

#include <array>
#include <vector>

/// A set of words of which the longest is known, so that most words of a text are no look-up.
struct ZEVTermSet {
    ZEVTermSet() = default;
    explicit ZEVTermSet(QSet<QString> words);

    bool contains(QStringView word) const;

    QSet<QString> words;
    std::array<std::vector<QString>, 64> buckets; ///< the same words, by what tells most of them apart
    qsizetype longest = 0; ///< UTF-16 units
};

struct ZEVCaseRules::Compiled {
    explicit Compiled(const Lists &lists);

    const QByteArray &wordBreakLocale() const;

    /// Whether \a word may be one of \a terms once its case is mapped; a few mappings shorten it, by no more
    /// than half, and none of those that hold in no special language.
    bool mayBeTerm(QStringView word, const ZEVTermSet &terms) const
    {
        return word.size() <= terms.longest * (caseLocale.isEmpty() ? 1 : 2);
    }

    /// Where the untouched spelling ends whose first word begins at \a position, the longest such; nil for
    /// none.
    std::optional<ZEVRange> untouchedRangeAt(QStringView text, qsizetype position) const;

    /// A spelling, and how much of it (punctuation) stands before its first word.
    struct Spelling {
        QString text;
        qsizetype wordBegin = 0;
        QChar initial() const { return text[wordBegin]; }
    };

    QByteArray caseLocale; ///< empty for no special language
    QByteArray breakLocale; ///< empty for the user's
    ZEVTermSet upperCaseTerms;
    ZEVTermSet lowerCaseTerms;
    std::vector<Spelling> spellings; ///< by initial, the longest first
};

/// The library's own lists, shared by all rules that bring none.
namespace ZEVCaseTerms {

const ZEVTermSet &upperCase();
const ZEVTermSet &lowerCase();

} // namespace ZEVCaseTerms
