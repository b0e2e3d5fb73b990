// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVStringScore.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringScorer.h>

#include <QTest>

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

Q_DECLARE_METATYPE(OptionalFloat)

class tst_ZEVStringScore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scores_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("abbreviation");
        QTest::addColumn<OptionalFloat>("fuzziness");
        QTest::addColumn<int>("options");
        QTest::addColumn<double>("expected");
        const auto row = [](const char *name, const QString &text, const QString &abbreviation,
                            OptionalFloat fuzziness, int options, double expected) {
            QTest::newRow(name) << text << abbreviation << fuzziness << options << expected;
        };
        const QString hello = u"Hello World"_s;
        row("same", hello, hello, NoFuzziness, 1, 1);
        row("both empty", u"42"_s, u"!"_s, NoFuzziness, 1, 1);
        row("empty abbreviation", hello, QString(), 1.0F, 1, 0);
        row("initials", hello, u"hw"_s, NoFuzziness, 1, (2.0 / 11 * 0.8 + 0.8) * 0.5 + 0.15);
        row("missing", hello, u"hz"_s, NoFuzziness, 1, 0);
        row("missing at half the price", hello, u"hz"_s, 0.5F, 1, (2.0 / 11 * 0.4 + 0.4) * 0.5 / 1.5 + 0.15);
        row("missing twice", hello, u"zhz"_s, 0.0F, 1,
            (3.0 / 11 * 0.3 + 0.3) * 0.5 / 3); // 'h' is no first letter
        row("the price is of single precision", hello, u"z"_s, 0.1F, 1,
            (1.0 / 11 * 0.1 + 0.1) * 0.5 / (1 + double(1.0F - 0.1F)));
        row("same case", hello, u"HW"_s, NoFuzziness, 1, (2.0 / 11 * 0.9 + 0.9) * 0.5 + 0.15);
        row("missing ones for free", u"ab"_s, u"abb"_s, 1.0F, 1, (1.5 * (1.7 / 3) + 1.7 / 3) * 0.5 + 0.15);
        row("longer by an integer ratio", u"ab"_s, u"abbbb"_s, 1.0F, 4, (2 * 0.38 + 0.38) * 0.5 + 0.15);
        row("no start bonus that reaches 1", u"ab"_s, u"ab"_s + QString(20, u'z'), 1.0F, 1,
            (11 * (3.6 / 22) + 3.6 / 22) * 0.5);
        row("in a row, not at the start", u"xab"_s, u"ab"_s, NoFuzziness, 1, (2.0 / 3 * 0.5 + 0.5) * 0.5);
        row("the first of either case", u"bBb"_s, u"BB"_s, NoFuzziness, 1,
            (2.0 / 3 * 0.75 + 0.75) * 0.5 + 0.15);
        row("space is met, too", u"a b"_s, u" b"_s, NoFuzziness, 1, (2.0 / 3 * 0.5 + 0.5) * 0.5);
        row("smaller words", hello, u"hz"_s, 0.5F, 2, 0.8 / 11);
        row("smaller words before the other", hello, u"hz"_s, 0.5F, 6, 0.8 / 11);
        row("integer ratio, shorter", hello, u"hw"_s, NoFuzziness, 4, 0.8 * 0.5 + 0.15);
        row("accents and punctuation", u"Café!"_s, u"Cafe"_s, NoFuzziness, 1, 1);
        row("composed and decomposed", u"Cafe\u0301"_s, u"Café"_s, NoFuzziness, 1, 1);
        row("two marks in one letter", u"ǖx"_s, u"ux"_s, NoFuzziness, 1, 1);
        row("title-case letter and ideograph go", u"ǅ日a"_s, u"a"_s, NoFuzziness, 1, 1);
        row("Greek with breathing", u"ᾄλφα"_s, u"αλφα"_s, NoFuzziness, 1, 1);
        row("sharp s meets SS by its first", u"SSa"_s, u"ßa"_s, NoFuzziness, 1,
            (2.0 / 3 * 0.45 + 0.45) * 0.5 + 0.15);
        row("pairs by their units", u"\U00010400\U00010401"_s, u"\U00010401"_s, NoFuzziness, 1,
            (0.5 * 0.5 + 0.5) * 0.5 + 0.15);
        row("nothing to compare", u"42"_s, u"a"_s, 1.0F, 1, 0);
        row("nothing to divide", u"42"_s, u"a"_s, 1.0F, 4, 0);
        row("nothing to divide by", u"42"_s, u"a"_s, 1.0F, 2, 0);
    }
    void scores()
    {
        QFETCH(QString, text);
        QFETCH(QString, abbreviation);
        QFETCH(OptionalFloat, fuzziness);
        QFETCH(int, options);
        QFETCH(double, expected);
        const ZEVStringScore::Options flags(options);
        const double score = scoreAgainst(text, abbreviation, fuzziness, flags);
        QVERIFY2(std::abs(score - expected) < 1e-12, qPrintable(QString::number(score, 'g', 17)));
        const ZEVStringScorer scorer(abbreviation, fuzziness, flags);
        QCOMPARE(scorer.scoreOfCleaned(ZEVStringScorer::cleanedString(text)), score);
        QCOMPARE(scorer.match(text).score, score);
    }

    void theDefaultToleratesMissing()
    {
        QCOMPARE(scoreAgainst(u"Hello World", u"hz"), (2.0 / 11 * 0.4 + 0.4) * 0.5 + 0.15);
        QVERIFY(scoreAgainst(u"Hello", u"z") > 0);
    }

    void wildFuzzinessGivesNumbers()
    {
        using Limits = std::numeric_limits<float>;
        for (const float fuzziness :
             {2.0F, -1e38F, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
            QVERIFY(!std::isnan(scoreAgainst(u"ab", u"az", fuzziness)));
    }

    void matchesTellWhere_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("abbreviation");
        QTest::addColumn<QList<ZEVRange>>("expected");
        const auto row = [](const char *name, const QString &text, const QString &abbreviation,
                            const QList<ZEVRange> &ranges) {
            QTest::newRow(name) << text << abbreviation << ranges;
        };
        row("initials", u"1. Hello World"_s, u"hw"_s, {{3, 1}, {9, 1}});
        row("joined, over what does not count apart", u"Hel-lo"_s, u"hell"_s, {{0, 3}, {4, 1}});
        row("accents of their own", u"\U0001F3B5 Cafe\u0301 x"_s, u"cafe"_s, {{3, 5}});
        row("the same text", u"Café!"_s, u"Cafe"_s, {{0, 4}});
        row("a pair as one", u"x\U00010400y"_s, u"\U00010400"_s, {{1, 2}});
        row("half of what is asked is there", u"ab"_s, u"bz"_s, {{1, 1}});
        row("nothing", u"ab"_s, QString(), {});
    }
    void matchesTellWhere()
    {
        QFETCH(QString, text);
        QFETCH(QString, abbreviation);
        QTEST(ZEVStringScorer(abbreviation).match(text).ranges, "expected");
    }

    void noScoreNoRanges() { QVERIFY(ZEVStringScorer(u"az", NoFuzziness).match(u"abc").ranges.isEmpty()); }

    void rankingFallsAndKeepsTheOrder()
    {
        const QStringList candidates{u"xyz"_s, u"Hot Water"_s, u"show"_s, u"HW"_s,
                                     u"hw"_s,  u"SHOW"_s,      u"42"_s};
        const ZEVStringScorer scorer(u"hw", NoFuzziness);
        const auto ranked = scorer.ranking(candidates);
        QCOMPARE(indexes(ranked), (QList<qsizetype>{4, 3, 1, 2, 5, 0, 6}));
        QCOMPARE(ranked.first().score, 1);
        QStringList cleaned;
        for (const QString &candidate : candidates)
            cleaned.append(ZEVStringScorer::cleanedString(candidate));
        QCOMPARE(indexes(scorer.rankingOfCleaned(cleaned)), indexes(ranked));
    }

    void theComparatorIsAStrictWeakOrdering()
    {
        const QStringList texts{u"ab"_s, u"AB"_s, QString(), u"42"_s, u"b a"_s, u"xaxb"_s, u"zz"_s};
        const float nan = std::numeric_limits<float>::quiet_NaN();
        for (const OptionalFloat fuzziness :
             {OptionalFloat(), OptionalFloat(0.5F), OptionalFloat(2), OptionalFloat(nan)}) {
            const auto compare = ZEVStringScore::scoreComparatorWithFuzziness(u"ab", fuzziness);
            for (const QString &x : texts) {
                QVERIFY(compare(x, x) == 0);
                for (const QString &y : texts) {
                    QVERIFY((compare(x, y) < 0) == (compare(y, x) > 0));
                    for (const QString &z : texts)
                        QVERIFY(!(compare(x, y) <= 0 && compare(y, z) <= 0) || compare(x, z) <= 0);
                }
            }
        }
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
