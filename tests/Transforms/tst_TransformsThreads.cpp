// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "FixedResults.h"

#include <ZEVGlobalUtils/Transforms/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/ZEVShortDateFormatter.h>

#include <QTest>

#include <array>
#include <latch>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What takes a lock stands last: it would order the threads and so hide a race before it.
QStringList resultsWithSharedRules(const ZEVCaseRules &rules, const ZEVStringScorer &scorer)
{
    QStringList results;
    results << ZEVStringTransforms::orvTitleCaseString(u"deadmau5 İN istanbul vol. 1", rules)
            << ZEVShortDateFormatter::sharedInstance().stringFromDate(QDateTime::fromMSecsSinceEpoch(0))
            << QString::number(scorer.match(u"Hello World").score)
            << FileSizeTransformer().transformedValue(QVariantList{1000, 3000}).toString();
    return results + fixedResults();
}

} // namespace

class tst_TransformsThreads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// All threads begin together, so that what is made once is asked for by all of them at once; nothing may
    /// be made before.
    void allThreadsSeeTheSame()
    {
        const ZEVCaseRules rules(
            {.untouchedSpellings = {u"deadmau5"_s}, .locale = QLocale(QLocale::Turkish)});
        const ZEVStringScorer scorer(u"hw");
        std::array<std::vector<QStringList>, 8> results;
        std::latch start(std::ssize(results));
        {
            std::vector<std::jthread> threads;
            for (auto &own : results)
                threads.emplace_back([&] {
                    start.arrive_and_wait();
                    for (int round = 0; round < 20; ++round)
                        own.push_back(resultsWithSharedRules(rules, scorer));
                });
        }
        const QStringList expected = resultsWithSharedRules(rules, scorer);
        QCOMPARE(expected.first(), u"deadmau5 in İstanbul vol. 1"_s);
        for (const auto &own : results) {
            QCOMPARE(own.size(), std::size_t(20));
            for (const QStringList &round : own)
                QCOMPARE(round, expected);
        }
    }
};

QTEST_GUILESS_MAIN(tst_TransformsThreads)
#include "tst_TransformsThreads.moc"
