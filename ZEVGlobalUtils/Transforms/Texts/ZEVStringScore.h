// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QFlags>
#include <QStringView>

#include <compare>
#include <functional>
#include <optional>

/// Rates how well a typed abbreviation fits a text: 1 for the same text, 0 for no match, and in between
/// for characters met in order. Accents, digits and punctuation do not count. Any thread.
namespace ZEVStringScore {

enum Option {
    None = 1,
    FavourSmallerWords = 2, ///< the characters' total over the text's length, and nothing else
    ReducedLongStringPenalty = 4, ///< kept: the ratio of the lengths is an integer, so 0 for shorter ones
};
Q_DECLARE_FLAGS(Options, Option)
Q_DECLARE_OPERATORS_FOR_FLAGS(Options)

/// An empty \a fuzziness refuses a text that lacks a character; otherwise 0 makes a missing one dear and
/// 1 (the default, on purpose) makes it free. A text without any letter scores 0 (1 if neither has one), and
/// so does what a wild \a fuzziness makes no number.
ZEV_EXPORT double scoreAgainst(QStringView string, QStringView abbreviation,
                               std::optional<float> fuzziness = 1.0F, Options options = None);

/// Less when the first of two candidates sorts first, having the higher score; the same score is equivalent,
/// so a stable sort keeps the order. A strict weak ordering, for std::ranges::stable_sort as "compare(a, b) <
/// 0". A list is ranked faster by ZEVStringScorer, which scores each candidate once.
using Comparator = std::function<std::weak_ordering(QStringView, QStringView)>;
ZEV_EXPORT Comparator scoreComparatorWithFuzziness(QStringView abbreviation, std::optional<float> fuzziness,
                                                   Options options = None);

} // namespace ZEVStringScore
