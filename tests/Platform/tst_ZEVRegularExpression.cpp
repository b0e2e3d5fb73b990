// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVError.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpressionMatcher.h>

#include <QRegularExpression>
#include <QTest>

#include <array>
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

constexpr auto CutShort = "Matching was cut short: U_REGEX_STOPPED_BY_CALLER";

} // namespace

static_assert(std::is_copy_constructible_v<ZEVRegularExpression>);
static_assert(!std::is_copy_constructible_v<ZEVRegularExpressionMatcher>);

class tst_ZEVRegularExpression : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZEVRegularExpression::setTimeLimit(250ms); }

    void matchesAreInUtf16Units()
    {
        QCOMPARE(ranges(u"b+"_s, u"\U0001F3B5bb a b"), (QList<ZEVRange>{{2, 2}, {7, 1}}));
        QCOMPARE(ranges(u"."_s, u"\xD83C\x0301x"), (QList<ZEVRange>{{0, 1}, {1, 1}, {2, 1}})); // a lone half
        QCOMPARE(ranges(u"x"_s, QString(u"\0x"_s)), (QList<ZEVRange>{{1, 1}}));
    }

    void emptyMatchesCount()
    {
        QCOMPARE(ranges(u"a*"_s, u"baa"), (QList<ZEVRange>{{0, 0}, {1, 2}, {3, 0}}));
        QCOMPARE(ranges(u"^"_s, u""), (QList<ZEVRange>{{0, 0}}));
        QCOMPARE(ranges(u"^"_s, QStringView()), (QList<ZEVRange>{{0, 0}}));
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
        const QString special = u"\\*?+[(){}^$|./"_s;
        const QString escaped = ZEVRegularExpression::escapedPatternForString(special + u"-]#\U0001F3B5 a"_s);
        QCOMPARE(escaped, u"\\\\\\*\\?\\+\\[\\(\\)\\{\\}\\^\\$\\|\\.\\/-]#\U0001F3B5 a"_s);
        for (char16_t unit = 1; unit < 0x250; ++unit) {
            const QString text(unit);
            const QString pattern = ZEVRegularExpression::escapedPatternForString(text);
            QCOMPARE(ranges(pattern, text), (QList<ZEVRange>{{0, 1}}));
        }
    }

    void whatDoesNotCompileSaysWhy_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("reason");
        QTest::newRow("parenthesis") << u"ab(c"_s << u"a parenthesis has no partner"_s;
        QTest::newRow("bracket") << u"[a"_s << u"a bracket is not closed"_s;
        QTest::newRow("escape") << u"\\"_s << u"a backslash stands before"_s;
        QTest::newRow("group") << u"(a)\\2"_s << u"it refers to a group"_s;
        QTest::newRow("interval") << u"a{3,2}"_s << u"a repetition in braces"_s;
        QTest::newRow("look-behind") << u"(?<=a*)b"_s << u"a look-behind"_s;
        QTest::newRow("nothing to repeat") << u"*"_s << u"it is not well formed"_s;
    }
    void whatDoesNotCompileSaysWhy()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, reason);
        ZEVError error;
        QVERIFY(!ZEVRegularExpression::compile(pattern, {}, &error));
        QCOMPARE(error.domain(), ZEVError::CocoaErrorDomain);
        QCOMPARE(error.code(), ZEVError::FormattingError);
        QVERIFY2(error.localizedDescription().contains(reason), qPrintable(error.localizedDescription()));
        QVERIFY(error.localizedDescription().contains(pattern));
        QCOMPARE(error.underlyingError()->domain(), u"ICU");
    }

    void runawaysEndWithWhatTheyFound_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("found");
        QTest::newRow("nested repetition") << u"(a+)+$"_s << QString(40, u'a') + u'!' << 0;
        QTest::newRow("found before") << u"x|(a+)+$"_s << u"x x "_s + QString(40, u'a') + u'!' << 2;
        QTest::newRow("many exponential words, each short")
            << u"(a+)+$"_s << (QString(22, u'a') + u"! "_s).repeated(5000) << 0;
        QTest::newRow("quadratic, every attempt honest") << u"a*b"_s << QString(100'000, u'a') << 0;
        QTest::newRow("quadratic in steps that ICU does not count")
            << u"[^x]*+x"_s << QString(200'000, u'a') << 0;
        QTest::newRow("four wildcards, nothing fits") << u"^(.*)(.*)(.*)(.*)x$"_s << QString(400, u'a') << 0;
    }
    void runawaysEndWithWhatTheyFound()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(CutShort)));
        const auto matches = compiled(pattern).matchesInString(text);
        QTEST(int(matches.ranges.size()), "found");
        QVERIFY(matches.limitReached);
    }

    /// Every match is found at once, and yet each looks at all that follows.
    void manyMatchesMayRunAwayTogether()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(CutShort)));
        const auto matches = compiled(u"a(?=[^x]*+)"_s).matchesInString(QString(300'000, u'a'));
        QVERIFY(matches.limitReached);
        QVERIFY(!matches.ranges.isEmpty() && matches.ranges.size() < 300'000);
    }

    void anOverflowingStackEndsTheText()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"U_REGEX_STACK_OVERFLOW"_s));
        ZEVRegularExpression::setTimeLimit(0ms);
        const auto matches = compiled(u"x|(?:a|b)*c"_s).matchesInString(u'x' + QString(4'000'000, u'a'));
        QCOMPARE(matches.ranges, (QList<ZEVRange>{{0, 1}}));
        QVERIFY(matches.limitReached);
    }

    void longHonestSearchesComplete_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("found");
        QTest::newRow("words") << u"(\\w+)"_s << u"Track 12 "_s.repeated(1'000'000) << 2'000'000;
        QTest::newRow("failing attempts at every word")
            << u"\\w+@\\w+"_s << u"abcdefghi "_s.repeated(1'000'000) << 0;
        QTest::newRow("one attempt to the end and back") << u"^(.*)b"_s << QString(8'000'000, u'a') << 0;
    }
    void longHonestSearchesComplete()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        ZEVRegularExpression::setTimeLimit(60ms); // well below what each of them takes
        const auto matches = compiled(pattern).matchesInString(text);
        QTEST(int(matches.ranges.size()), "found");
        QVERIFY(!matches.limitReached);
    }

    void aWalkGoesOnAfterAStruckText()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(CutShort)));
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
        std::array<qsizetype, 4> counts{};
        {
            std::vector<std::jthread> threads;
            for (qsizetype &count : counts)
                threads.emplace_back([&] { count = words.numberOfMatchesInString(text); });
        }
        for (const qsizetype count : counts)
            QCOMPARE(count, 2000);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVRegularExpression)
#include "tst_ZEVRegularExpression.moc"
