// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using ZEVStringFilterRegexValue::filterRegexValue;

class tst_ZEVStringFilterRegexValue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyWordIsALiteralGroup_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("two words") << u"new york"_s << u".*(new).*(york).*"_s;
        QTest::newRow("an empty word stays") << u"a  b"_s << u".*(a).*().*(b).*"_s;
        QTest::newRow("spaces at the ends") << u" a "_s << u".*().*(a).*().*"_s;
        QTest::newRow("only a space") << u" "_s << u".*().*().*"_s;
        QTest::newRow("special") << u"a.b (c)"_s << u".*(a\\.b).*(\\(c\\)).*"_s;
        QTest::newRow("other white space does not part") << u"a\tb"_s << u".*(a\tb).*"_s;
    }
    void everyWordIsALiteralGroup()
    {
        QFETCH(QString, filter);
        QTEST(filterRegexValue(filter)->pattern(), "pattern");
    }

    void wordsMatchInOrderInAnyCase_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("fits");
        QTest::newRow("case") << u"ROCK é"_s << u"Art rock, É"_s << true;
        QTest::newRow("order") << u"york new"_s << u"New York"_s << false;
        QTest::newRow("literal dot") << u"a.b"_s << u"xxA.Byy"_s << true;
        QTest::newRow("no other character") << u"a.b"_s << u"aXb"_s << false;
        QTest::newRow("the same letters are not used twice") << u"a a"_s << u"xax"_s << false;
    }
    void wordsMatchInOrderInAnyCase()
    {
        QFETCH(QString, filter);
        QFETCH(QString, text);
        QTEST(filterRegexValue(filter)->rangeOfFirstMatchInString(text).has_value(), "fits");
    }

    void anEmptyFilterIsNil() { QVERIFY(!filterRegexValue(QString()) && !filterRegexValue(u""_s)); }

    void eightEqualWordsEnd()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
        const auto expression = filterRegexValue(u"a a a a a a a a b"_s);
        const auto matches = expression->matchesInString(QString(200, u'a'));
        QVERIFY(matches.limitReached);
        QVERIFY(matches.ranges.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_ZEVStringFilterRegexValue)
#include "tst_ZEVStringFilterRegexValue.moc"
