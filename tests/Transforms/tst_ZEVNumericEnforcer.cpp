// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVZeroAsNilNumericEnforcer.h>

#include <QLineEdit>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_ZEVNumericEnforcer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onlyDigitsMayBeTyped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("empty") << QString() << true;
        QTest::newRow("digits") << u"0129"_s << true;
        QTest::newRow("above the limit") << u"99999"_s << true;
        QTest::newRow("letter") << u"12a"_s << false;
        QTest::newRow("minus") << u"-1"_s << false;
        QTest::newRow("space") << u"1 "_s << false;
        QTest::newRow("Arabic") << u"١٢"_s << true;
        QTest::newRow("beyond the BMP") << u"\U0001D7D9"_s << true;
        QTest::newRow("a number that is no digit") << u"½²Ⅳ"_s << false;
        QTest::newRow("half a pair") << u"\xD835"_s << false;
    }
    void onlyDigitsMayBeTyped()
    {
        QFETCH(QString, text);
        QString changed = u"kept"_s;
        QString error = u"kept"_s;
        const auto *const enforcer = ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer();
        QTEST(enforcer->isPartialStringValid(text, &changed, &error), "expected");
        QCOMPARE(changed + error, u"keptkept"_s);
    }

    void numbersAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("success");
        QTest::addColumn<QVariant>("expected");
        const QVariant untouched(u"untouched"_s);
        QTest::newRow("number") << u"12"_s << true << QVariant(12LL);
        QTest::newRow("leading 0") << u"007"_s << true << QVariant(7LL);
        QTest::newRow("0") << u"0"_s << true << QVariant();
        QTest::newRow("00") << u"00"_s << true << QVariant();
        QTest::newRow("empty") << QString() << true << QVariant();
        QTest::newRow("greatest") << u"9999"_s << true << QVariant(9999LL);
        QTest::newRow("too great") << u"10000"_s << false << untouched;
        QTest::newRow("beyond 64 bits") << QString(30, u'9') << false << untouched;
        QTest::newRow("negative") << u"-1"_s << false << untouched;
        QTest::newRow("fraction") << u"1.5"_s << false << untouched;
        QTest::newRow("only a sign") << u"-"_s << false << untouched;
        QTest::newRow("Arabic") << u"١٢"_s << true << QVariant(12LL);
    }
    void numbersAreRead()
    {
        QFETCH(QString, text);
        QFETCH(bool, success);
        QVariant object(u"untouched"_s);
        QString error;
        const auto *const enforcer = ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer();
        QCOMPARE(enforcer->getObjectValue(&object, text, &error), success);
        QTEST(object, "expected");
        QCOMPARE(error.isEmpty(), success);
    }

    void zeroIsANumberWithoutLimits()
    {
        const ZEVNumericEnforcer plain;
        QVariant object;
        QVERIFY(plain.getObjectValue(&object, u"0"_s));
        QCOMPARE(object, QVariant(0LL));
        QVERIFY(plain.getObjectValue(&object, u"-10000"_s));
        QCOMPARE(object, QVariant(-10000LL));
    }

    void numbersAreShownInTheUsersDigits()
    {
        const ZEVNumericEnforcer plain;
        QLocale::setDefault(QLocale(u"en_US"_s));
        QCOMPARE(plain.stringForObjectValue(1999), u"1999"_s);
        QCOMPARE(plain.stringForObjectValue({}), QString());
        QLocale::setDefault(QLocale(u"ar_EG"_s));
        QCOMPARE(plain.stringForObjectValue(1999), u"١٩٩٩"_s);
        QLocale::setDefault(QLocale::c());
    }

    void aLineEditRefusesTheRest()
    {
        QLineEdit edit;
        edit.setValidator(ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer());
        QTest::keyClicks(&edit, u"1-2a 3"_s);
        QCOMPARE(edit.text(), u"123"_s);
        QVERIFY(edit.hasAcceptableInput());
        QTest::keyClicks(&edit, u"45"_s);
        QCOMPARE(edit.text(), u"12345"_s);
        QVERIFY(!edit.hasAcceptableInput());
        edit.clear();
        QVERIFY(edit.hasAcceptableInput());
    }
};

QTEST_MAIN(tst_ZEVNumericEnforcer)
#include "tst_ZEVNumericEnforcer.moc"
