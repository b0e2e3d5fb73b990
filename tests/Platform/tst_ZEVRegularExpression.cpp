// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QRegularExpression>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

ZEVRegularExpression compiled(const QString &pattern)
{
    return ZEVRegularExpression::compile(pattern).value();
}

QList<ZEVRange> ranges(const QString &pattern, QStringView text)
{
    return compiled(pattern).matchesInString(text).ranges;
}

void expectCutShort(const QString &code = u"U_REGEX_STOPPED_BY_CALLER"_s)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short: "_s + code));
}

} // namespace

class tst_ZEVRegularExpression : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZEVRegularExpression::setTimeLimit(250ms); }

    void matchesAreInUtf16Units()
    {
        const std::tuple<QString, QString, QList<ZEVRange>> rows[] = {
            {u"b+"_s, u"\U0001F3B5bb a b"_s, {{2, 2}, {7, 1}}},
            {u"."_s, u"\xD83C\x0301x"_s, {{0, 1}, {1, 1}, {2, 1}}}, // a lone half
            {u"x"_s, u"\0x"_s, {{1, 1}}},
            {u"a*"_s, u"baa"_s, {{0, 0}, {1, 2}, {3, 0}}},
            {u"^"_s, {}, {{0, 0}}},
        };
        for (const auto &[pattern, text, found] : rows)
            COMPARE_ROW(pattern, ranges(pattern, text), found);
    }

    void groupsThatTookNoPartAreNil()
    {
        ZEVRegularExpressionMatcher matcher(compiled(u"(a)|(b)|(c*)"_s));
        matcher.setText(u"b");
        QVERIFY(matcher.findNext());
        QCOMPARE(matcher.rangeOfGroup(1), std::nullopt);
        QCOMPARE(matcher.rangeOfGroup(2), (ZEVRange{0, 1}));
        QCOMPARE(matcher.rangeOfGroup(4), std::nullopt);
        QVERIFY(matcher.findNext());
        QCOMPARE(matcher.rangeOfGroup(3), (ZEVRange{1, 0}));
    }

    void caseIsMatchedOnlyWhenAsked()
    {
        const auto insensitive =
            ZEVRegularExpression::compile(u"STRASSE ÉTÉ"_s, ZEVRegularExpression::CaseInsensitive).value();
        QCOMPARE(insensitive.numberOfMatchesInString(u"straße été"), 1);
        QCOMPARE(compiled(u"ÉTÉ"_s).numberOfMatchesInString(u"été"), 0);
        QVERIFY(insensitive != compiled(insensitive.pattern()));
    }

    void escapingMakesEveryCharacterLiteral()
    {
        const QString special = u"\\*?+[(){}^$|./-]#\U0001F3B5 a"_s;
        QCOMPARE(ZEVRegularExpression::escapedPatternForString(special),
                 u"\\\\\\*\\?\\+\\[\\(\\)\\{\\}\\^\\$\\|\\.\\/-]#\U0001F3B5 a"_s);
        for (char16_t unit = 1; unit < 0x250; ++unit) {
            const QString text(unit);
            QCOMPARE(ranges(ZEVRegularExpression::escapedPatternForString(text), text).size(), 1);
        }
    }

    void whatDoesNotCompileSaysWhy()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"ab(c"_s, u"a parenthesis has no partner"_s}, {u"[a"_s, u"a bracket is not closed"_s},
            {u"\\"_s, u"a backslash stands before"_s},      {u"(a)\\2"_s, u"it refers to a group"_s},
            {u"a{3,2}"_s, u"a repetition in braces"_s},     {u"(?<=a*)b"_s, u"a look-behind"_s},
            {u"*"_s, u"it is not well formed"_s},
        };
        for (const auto &[pattern, reason] : rows) {
            ZEVError error;
            QVERIFY(!ZEVRegularExpression::compile(pattern, {}, &error));
            QCOMPARE(error.code(), ZEVError::FormattingError);
            const QString text = error.localizedDescription();
            QVERIFY2(text.contains(reason) && text.contains(pattern), qPrintable(text));
            QCOMPARE(error.underlyingError()->domain(), u"ICU");
        }
    }

    void runawaysEndWithWhatTheyFound()
    {
        const QString runaway = QString(40, u'a') + u'!';
        const std::tuple<const char *, QString, QString, qsizetype> rows[] = {
            {"nested repetition", u"(a+)+$"_s, runaway, 0},
            {"found before", u"x|(a+)+$"_s, u"x x "_s + runaway, 2},
            {"exponential words, each short", u"(a+)+$"_s, (QString(22, u'a') + u"! "_s).repeated(5000), 0},
            {"quadratic, every attempt honest", u"a*b"_s, QString(100'000, u'a'), 0},
            {"quadratic in steps that ICU does not count", u"[^x]*+x"_s, QString(200'000, u'a'), 0},
            {"four wildcards, nothing fits", u"^(.*)(.*)(.*)(.*)x$"_s, QString(400, u'a'), 0},
        };
        for (const auto &[name, pattern, text, found] : rows) {
            expectCutShort();
            const auto matches = compiled(pattern).matchesInString(text);
            COMPARE_ROW(name, matches.ranges.size(), found);
            QVERIFY2(matches.limitReached, name);
        }
    }

    /// Every match is found at once, and yet each looks at all that follows.
    void manyMatchesMayRunAwayTogether()
    {
        expectCutShort();
        const auto matches = compiled(u"a(?=[^x]*+)"_s).matchesInString(QString(300'000, u'a'));
        QVERIFY(matches.limitReached);
        QVERIFY(!matches.ranges.isEmpty());
        QVERIFY(matches.ranges.size() < 300'000);
    }

    void anOverflowingStackEndsTheText()
    {
        expectCutShort(u"U_REGEX_STACK_OVERFLOW"_s);
        ZEVRegularExpression::setTimeLimit(0ms);
        const auto matches = compiled(u"x|(?:a|b)*c"_s).matchesInString(u'x' + QString(4'000'000, u'a'));
        QCOMPARE(matches.ranges, (QList<ZEVRange>{{0, 1}}));
        QVERIFY(matches.limitReached);
    }

    void longHonestSearchesComplete()
    {
        const std::tuple<const char *, QString, QString, qsizetype> rows[] = {
            {"words", u"(\\w+)"_s, u"Track 12 "_s.repeated(1'000'000), 2'000'000},
            {"failing attempts at every word", u"\\w+@\\w+"_s, u"abcdefghi "_s.repeated(1'000'000), 0},
            {"one attempt to the end and back", u"^(.*)b"_s, QString(8'000'000, u'a'), 0},
        };
        ZEVRegularExpression::setTimeLimit(60ms); // well below what each of them takes
        for (const auto &[name, pattern, text, found] : rows) {
            const auto matches = compiled(pattern).matchesInString(text);
            COMPARE_ROW(name, matches.ranges.size(), found);
            QVERIFY2(!matches.limitReached, name);
        }
    }

    void aWalkGoesOnAfterAStruckText()
    {
        expectCutShort();
        ZEVRegularExpression::setTimeLimit(20ms);
        ZEVRegularExpressionMatcher matcher(compiled(u"x|(a+)+$"_s));
        const QString runaway = QString(60, u'a') + u'!';
        matcher.setText(runaway);
        QVERIFY(!matcher.findNext());
        QVERIFY(matcher.textReachedLimit());
        matcher.setText(u"ax");
        QVERIFY(matcher.findNext());
        QVERIFY(!matcher.textReachedLimit());
        QVERIFY(matcher.limitReached());
        QVERIFY(!matcher.isExhausted());

        int struck = 1;
        for (; !matcher.isExhausted(); ++struck) {
            QVERIFY(struck <= 50);
            matcher.setText(runaway);
            QVERIFY(!matcher.findNext());
        }
        QVERIFY2(struck >= 10, qPrintable(QString::number(struck))); // about a second of 20 ms each
        matcher.setText(u"x");
        QVERIFY(!matcher.findNext());
    }

    void oneExpressionServesManyThreads()
    {
        const ZEVRegularExpression words = compiled(u"(\\w+) (\\d+)"_s);
        const QString text = u"Track 12, "_s.repeated(2000);
        std::atomic<qsizetype> found = 0;
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < 4; ++i)
                threads.emplace_back([&] { found += words.numberOfMatchesInString(text); });
        }
        QCOMPARE(found.load(), 8000);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVRegularExpression)
#include "tst_ZEVRegularExpression.moc"
