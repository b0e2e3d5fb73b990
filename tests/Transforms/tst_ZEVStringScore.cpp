// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScore.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using ZEVStringScore::scoreAgainst;

namespace {

constexpr auto NoFuzziness = std::nullopt;
using OptionalFloat = std::optional<float>;

QList<qsizetype> indexes(const QList<ZEVStringScorer::Ranked> &ranked)
{
    QList<qsizetype> found;
    for (const auto &entry : ranked)
        found.append(entry.index);
    return found;
}

} // namespace

class tst_ZEVStringScore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scores()
    {
        constexpr double Start = 0.15;
        const QString hello = u"Hello World"_s, hw = u"hw"_s, hz = u"hz"_s;
        const QString ab = u"ab"_s, abz = ab + QString(20, u'z');
        const std::tuple<const char *, QString, QString, OptionalFloat, int, double> rows[] = {
            {"both empty", u"42"_s, u"!"_s, {}, 1, 1},
            {"empty abbreviation", hello, {}, 1.0F, 1, 0},
            {"initials", hello, hw, {}, 1, (2.0 / 11 * 0.8 + 0.8) * 0.5 + Start},
            {"missing", hello, hz, {}, 1, 0},
            {"missing at half", hello, hz, 0.5F, 1, (2.0 / 11 * 0.4 + 0.4) * 0.5 / 1.5 + Start},
            {"missing twice, no first letter", hello, u"zhz"_s, 0.0F, 1, (3.0 / 11 * 0.3 + 0.3) * 0.5 / 3},
            {"single precision", hello, u"z"_s, 0.1F, 1,
             (1.0 / 11 * 0.1 + 0.1) * 0.5 / (1 + double(1.0F - 0.1F))},
            {"same case", hello, u"HW"_s, {}, 1, (2.0 / 11 * 0.9 + 0.9) * 0.5 + Start},
            {"missing for free", ab, u"abb"_s, 1.0F, 1, (1.5 * (1.7 / 3) + 1.7 / 3) * 0.5 + Start},
            {"integer ratio, longer", ab, u"abbbb"_s, 1.0F, 4, (2 * 0.38 + 0.38) * 0.5 + Start},
            {"integer ratio, shorter", hello, hw, {}, 4, 0.8 * 0.5 + Start},
            {"no start bonus that reaches 1", ab, abz, 1.0F, 1, (11 * (3.6 / 22) + 3.6 / 22) * 0.5},
            {"in a row, not at the start", u"xab"_s, ab, {}, 1, (2.0 / 3 * 0.5 + 0.5) * 0.5},
            {"the first of either case", u"bBb"_s, u"BB"_s, {}, 1, (2.0 / 3 * 0.75 + 0.75) * 0.5 + Start},
            {"space is met, too", u"a b"_s, u" b"_s, {}, 1, (2.0 / 3 * 0.5 + 0.5) * 0.5},
            {"smaller words before the other", hello, hz, 0.5F, 6, 0.8 / 11},
            {"accents and punctuation", u"Cafe\u0301!"_s, u"Café"_s, {}, 1, 1},
            {"two marks in one letter", u"ǖx"_s, u"ux"_s, {}, 1, 1},
            {"title-case letter and ideograph go", u"ǅ日a"_s, u"a"_s, {}, 1, 1},
            {"Greek with breathing", u"ᾄλφα"_s, u"αλφα"_s, {}, 1, 1},
            {"sharp s meets SS by its first",
             u"SSa"_s,
             u"ßa"_s,
             {},
             1,
             (2.0 / 3 * 0.45 + 0.45) * 0.5 + Start},
            {"pairs by their units", u"\U00010400\U00010401"_s, u"\U00010401"_s, {}, 1, 0.375 + Start},
            {"nothing to compare", u"42"_s, u"a"_s, 1.0F, 1, 0},
            {"nothing to divide", u"42"_s, u"a"_s, 1.0F, 4, 0},
            {"nothing to divide by", u"42"_s, u"a"_s, 1.0F, 2, 0},
        };
        for (const auto &[name, text, abbreviation, fuzziness, options, expected] : rows) {
            const ZEVStringScore::Options flags(options);
            const double score = scoreAgainst(text, abbreviation, fuzziness, flags);
            QVERIFY2(std::abs(score - expected) < 1e-12, failedRow(name, score).constData());
            const ZEVStringScorer scorer(abbreviation, fuzziness, flags);
            COMPARE_ROW(name, scorer.scoreOfCleaned(ZEVStringScorer::cleanedString(text)), score);
            COMPARE_ROW(name, scorer.match(text).score, score);
        }
        using Limits = std::numeric_limits<float>;
        for (const float wild : {-1e38F, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
            QVERIFY(!std::isnan(scoreAgainst(ab, u"az", wild)));
        QCOMPARE(scoreAgainst(hello, hz), (2.0 / 11 * 0.4 + 0.4) * 0.5 + Start); // missing ones are free
    }

    void matchesTellWhere()
    {
        const std::tuple<QString, QString, QList<ZEVRange>> rows[] = {
            {u"1. Hello World"_s, u"hw"_s, {{3, 1}, {9, 1}}},
            {u"Hel-lo"_s, u"hell"_s, {{0, 3}, {4, 1}}}, // joined, over what does not count apart
            {u"\U0001F3B5 Cafe\u0301 x"_s, u"cafe"_s, {{3, 5}}},
            {u"Café!"_s, u"Cafe"_s, {{0, 4}}},
            {u"x\U00010400y"_s, u"\U00010400"_s, {{1, 2}}},
            {u"ab"_s, u"bz"_s, {{1, 1}}},
        };
        for (const auto &[text, abbreviation, ranges] : rows)
            COMPARE_ROW(text, ZEVStringScorer(abbreviation).match(text).ranges, ranges);
        QVERIFY(ZEVStringScorer(u"az", NoFuzziness).match(u"abc").ranges.isEmpty());
    }

    void rankingFallsAndKeepsTheOrder()
    {
        const QStringList candidates{u"xyz"_s, u"Hot Water"_s, u"show"_s, u"HW"_s,
                                     u"hw"_s,  u"SHOW"_s,      u"42"_s};
        const ZEVStringScorer scorer(u"hw", NoFuzziness);
        const auto ranked = scorer.ranking(candidates);
        QCOMPARE(indexes(ranked), (QList<qsizetype>{4, 3, 1, 2, 5, 0, 6}));
        QCOMPARE(ranked.first().score, 1);
        QCOMPARE(indexes(scorer.rankingOfCleaned(candidates)), (QList<qsizetype>{4, 3, 1, 2, 5, 0, 6}));
        QVERIFY(ZEVStringScore::scoreComparatorWithFuzziness(u"ab", NoFuzziness)(u"ab", u"axb") < 0);
    }

    /// Neither may take time that grows with the product of the lengths.
    void largeTextsAreRead()
    {
        const QString text = QString(1'000'000, u'a') + u"ß\xD800"_s;
        QVERIFY(scoreAgainst(text, text.left(900'000)) > 0.5);
        QVERIFY(scoreAgainst(text, QString(900'000, u'z')) > 0);
        QVERIFY(scoreAgainst(QString(1'000'000, u's'), QString(1'000'000, u'ß')) > 0);
        QCOMPARE(ZEVStringScorer(QString(1000, u'a')).match(text).ranges, (QList<ZEVRange>{{0, 1000}}));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVStringScore)
#include "tst_ZEVStringScore.moc"
