// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringStrip.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ZEVStringStrip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void strippingKeepsTheOrder()
    {
        const auto vowels = ZEVCharacterSet::charactersInString(u"aeiou\U0001F3B5");
        QCOMPARE(ZEVStringStrip::stringByStrippingCharactersInSet(u"a bouquet", vowels), u" bqt"_s);
        QCOMPARE(ZEVStringStrip::stringByStrippingCharactersInSet(u"", vowels), u""_s);
        // Unit by unit: a pair is no member, though its character is; inverted, its halves are.
        QCOMPARE(ZEVStringStrip::stringByStrippingCharactersInSet(u"\U0001F3B5a", vowels), u"\U0001F3B5"_s);
        QCOMPARE(ZEVStringStrip::stringByStrippingCharactersInSet(u"\U0001F3B5ab", vowels.inverted()),
                 u"a"_s);
    }

    void trimmingGivesARange_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<ZEVRange>("expected");
        QTest::newRow("both ends") << u"  ab "_s << ZEVRange{2, 2};
        QTest::newRow("nothing kept") << u"   "_s << ZEVRange{0, 0};
        QTest::newRow("empty") << QString() << ZEVRange{0, 0};
        QTest::newRow("inner space stays") << u"\ta b\u00A0"_s << ZEVRange{1, 3};
        QTest::newRow("line ends are no white space") << u" \n "_s << ZEVRange{1, 1};
        QTest::newRow("a last pair loses its second unit") << u" a\U0001F3B5 "_s << ZEVRange{1, 2};
        QTest::newRow("a first pair begins the range") << u" \U0001F3B5a "_s << ZEVRange{1, 3};
        QTest::newRow("a lone half is kept") << u" \xDC00 "_s << ZEVRange{1, 1};
    }
    void trimmingGivesARange()
    {
        QFETCH(QString, text);
        QTEST(ZEVStringStrip::rangeOfSubstringByTrimmingCharactersInSet(text, ZEVCharacterSet::whitespace()),
              "expected");
    }

    void trimmingLooksAtWholeCharacters()
    {
        const auto notes = ZEVCharacterSet::charactersInString(u"\U0001F3B5");
        QCOMPARE(ZEVStringStrip::rangeOfSubstringByTrimmingCharactersInSet(u"\U0001F3B5ab\U0001F3B5", notes),
                 (ZEVRange{2, 2}));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVStringStrip)
#include "tst_ZEVStringStrip.moc"
