// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScore.h>

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

double ZEVStringScore::scoreAgainst(QStringView string, QStringView abbreviation,
                                    std::optional<float> fuzziness, Options options)
{
    return ZEVStringScorer(abbreviation, fuzziness, options).score(string);
}

ZEVStringScore::Comparator ZEVStringScore::scoreComparatorWithFuzziness(QStringView abbreviation,
                                                                        std::optional<float> fuzziness,
                                                                        Options options)
{
    return [scorer = ZEVStringScorer(abbreviation, fuzziness, options)](QStringView x, QStringView y) {
        return std::weak_order(scorer.score(y), scorer.score(x));
    };
}
