// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVISO8601DateFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVZeroAsNilNumericEnforcer.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringStrip.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <QLocale>
#include <QProcess>

#include <array>
#include <cstdio>
#include <latch>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What is the same in every language and on every thread, over texts whose letters some languages treat in a
/// way of their own.
QStringList fixedResults()
{
    static const QStringList texts{u"IRMAK in İstanbul: ıssız IDM"_s,
                                   u"het IJS van ijmuiden"_s,
                                   u"die STRASSE und straße"_s,
                                   u"the best of (the early years) vol. II"_s,
                                   u"1ST 22nd rock'n'roll 3d: AND"_s,
                                   u"日本語 の title ラジオ"_s,
                                   u"ΟΔΟΣ ᾳδης of"_s,
                                   u"x \xD83C \U0001F468‍\U0001F469 ￼ y"_s};
    QStringList results;
    for (const QString &text : texts) {
        results << ZEVStringTransforms::orvCapitalizedString(text)
                << ZEVStringTransforms::orvTitleCaseString(text)
                << ZEVStringTransforms::sentenceCaseString(text) << ZEVStringTransforms::camelCaseString(text)
                << ZEVStringTransforms::withUnderscoresString(text)
                << ZEVStringStrip::stringByStrippingCharactersInSet(text, ZEVCharacterSet::letters())
                << QString::number(ZEVStringScore::scoreAgainst(text, u"iıst"), 'g', 17);
    }
    const auto transformed = [](const QString &name, const QVariant &value) {
        return ZEVValueTransformer::valueTransformerForName(name)->transformedValue(value).toString();
    };
    QVariant number;
    ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer()->getObjectValue(&number, u"1234"_s);
    results << transformed(u"ResolutionTransformer"_s, u"{1640.9, 480.2}"_s)
            << transformed(u"ZEVMatchesCountDisplayTransformer"_s, 1234)
            << transformed(u"ZEVResultsCountDisplayTransformer"_s, 1234)
            << transformed(u"TagSizeTransformer"_s, QVariantList{0}) << number.toString()
            << ZEVISO8601DateFormatter::sharedInstance().stringFromDate(
                   QDateTime::fromMSecsSinceEpoch(1'714'979'289'000));
    return results;
}

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

constexpr auto PrintArgument = "--print-results";

/// The locale that is in force, and all that must not depend on it.
int printResults()
{
    const QString date = ZEVShortDateFormatter::sharedInstance().stringFromDate(
        QDateTime::fromMSecsSinceEpoch(1'714'979'289'000));
    const QByteArray text = (QLocale().name() + u'\n' + date + u'\n' + fixedResults().join(u'\n')).toUtf8();
    return std::puts(text.constData()) < 0;
}

/// The results of a process of its own, which takes its locale from LANG, and from LC_TIME that of dates.
QStringList resultsUnder(const QString &lang, const QString &dates = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LC_ALL"_s);
    environment.remove(u"LANGUAGE"_s);
    environment.insert(u"LANG"_s, lang);
    environment.insert(u"LC_TIME"_s, dates);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(PrintArgument)});
    return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()).split(u'\n')
                                     : QStringList();
}

} // namespace

class tst_TransformsAnywhere : public QObject {
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
        for (const auto &own : results)
            QCOMPARE(own, std::vector<QStringList>(20, expected));
    }

    void resultsAreThoseOfTheCLocale()
    {
        QStringList expected = resultsUnder(u"C"_s);
        QCOMPARE(expected.takeFirst(), u"C"_s);
        expected.removeFirst(); // the date
        QVERIFY(expected.size() > 50);
        for (const QString &name : {u"en_US"_s, u"tr_TR"_s, u"ar_EG"_s, u"zh_CN"_s}) {
            QStringList results = resultsUnder(name + u".UTF-8"_s);
            QCOMPARE(results.takeFirst(), name); // else nothing would be shown
            results.removeFirst();
            QCOMPARE(results, expected);
        }
    }

    void shortDatesFollowTheLocaleOfDates()
    {
        const QString german = resultsUnder(u"de_DE.UTF-8"_s).at(1);
        const QString english = resultsUnder(u"en_US.UTF-8"_s).at(1);
        QVERIFY(german != english);
        QCOMPARE(resultsUnder(u"en_US.UTF-8"_s, u"de_DE.UTF-8"_s).at(1), german);
        QCOMPARE(resultsUnder(u"C"_s, u"de_DE.UTF-8"_s).at(1), german);
    }

    void aDefaultThatChangesChangesNothing()
    {
        const QStringList expected = fixedResults();
        for (const char *name : {"en_US", "tr_TR", "ar_EG", "ja_JP", "C"}) {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            QCOMPARE(fixedResults(), expected);
        }
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], PrintArgument) == 0)
        return printResults();
    tst_TransformsAnywhere test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_TransformsAnywhere.moc"
