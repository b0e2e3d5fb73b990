// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVAppearanceHelpers.h>
#include <ZEVGlobalUtils/Transforms/ZEVDataMD5.h>
#include <ZEVGlobalUtils/Transforms/ZEVEventHelpers.h>
#include <ZEVGlobalUtils/Transforms/ZEVFontWeightHelpers.h>
#include <ZEVGlobalUtils/Transforms/ZEVGeometry.h>
#include <ZEVGlobalUtils/Transforms/ZEVGlobalUtilsVersion.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;

static_assert(ZEVGlobalUtilsVersionNumber == 1.0);
static_assert(std::string_view(ZEVGlobalUtilsVersionString)
              == "@(#)PROGRAM:ZEVGlobalUtils  PROJECT:ZEVGlobalUtils-1\n");

class tst_ZEVUtilities : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void digestsAreThePublishedOnes()
    {
        QCOMPARE(ZEVDataMD5::MD5Hash({}), u"d41d8cd98f00b204e9800998ecf8427e");
        QCOMPARE(ZEVDataMD5::MD5Hash("message digest"), u"f96b697d7cb7938d525a2f31aaf161d0");
    }

    void rectangles()
    {
        QCOMPARE(ZEVRectFromSize({3, 4}), QRectF(0, 0, 3, 4));
        QCOMPARE(ZEVRectFromPoints({10, 20}, {4, 30}), QRectF(4, 20, 6, 10));
        QCOMPARE(ZEVExpandedRect({10, 10, 4, 4}, 3, -2), QRectF(8.5, 11, 7, 2));
    }

    void centredRectanglesStandOnWholePoints_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QRectF>("outer");
        QTest::addColumn<QRectF>("centred");
        QTest::newRow("half points go upwards") << QSizeF(3, 3) << QRectF(0, 0, 10, 10) << QRectF(4, 4, 3, 3);
        QTest::newRow("upwards below zero, too")
            << QSizeF(3, 3) << QRectF(-10, -10, 10, 10) << QRectF(-6, -6, 3, 3);
        QTest::newRow("larger than the outer")
            << QSizeF(14, 13) << QRectF(0, 0, 10, 10) << QRectF(-2, -1, 14, 13);
        QTest::newRow("edges are rounded, not the size")
            << QSizeF(2.5, 3.4) << QRectF(0, 0, 10, 10) << QRectF(4, 3, 2, 4);
        QTest::newRow("just below a half")
            << QSizeF(0, 0) << QRectF(0, 0, 0.99999999999999988, 1) << QRectF(0, 1, 0, 0);
    }
    void centredRectanglesStandOnWholePoints()
    {
        QFETCH(QSizeF, size);
        QFETCH(QRectF, outer);
        QTEST(ZEVCenteredRectWithSizeInRect(size, outer), "centred");
    }

    void fontVariantsAreTheSystemsAtTheSameSize()
    {
        QFont serif(u"Serif"_s);
        serif.setPointSizeF(17.5);
        const QFont medium = ZEVFontWeightHelpers::mediumVariant(serif);
        QCOMPARE(medium.family(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
        QCOMPARE(medium.pointSizeF(), 17.5);
        serif.setPixelSize(23);
        QCOMPARE(ZEVFontWeightHelpers::semiBoldVariant(serif).pixelSize(), 23);
        QVERIFY(medium.weight() < ZEVFontWeightHelpers::semiBoldVariant(serif).weight());
        QVERIFY(QFont::Bold < ZEVFontWeightHelpers::heavyVariant(serif).weight());
    }

    void darkness()
    {
        QVERIFY(ZEVAppearanceHelpers::isDark(u"AccessibleHighContrastDarkAqua"));
        QVERIFY(!ZEVAppearanceHelpers::isDark(u"dark"));
        QPalette palette(Qt::white);
        QVERIFY(!ZEVAppearanceHelpers::isDark(palette));
        palette.setColor(QPalette::Window, QColor(40, 40, 40));
        palette.setColor(QPalette::WindowText, QColor(220, 220, 220));
        QVERIFY(ZEVAppearanceHelpers::isDark(palette));
    }

    void enterIsOnePressOfOneCharacter_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("enter");
        QTest::newRow("return") << int(QEvent::KeyPress) << u"\r"_s << true;
        QTest::newRow("keypad") << int(QEvent::KeyPress) << u"\x03"_s << true;
        QTest::newRow("released") << int(QEvent::KeyRelease) << u"\r"_s << false;
        QTest::newRow("two") << int(QEvent::KeyPress) << u"\r\r"_s << false;
        QTest::newRow("line feed") << int(QEvent::KeyPress) << u"\n"_s << false;
        QTest::newRow("no text") << int(QEvent::KeyPress) << u""_s << false;
    }
    void enterIsOnePressOfOneCharacter()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        QTEST(
            ZEVEventHelpers::isEnterKey(QKeyEvent(QEvent::Type(type), Qt::Key_Return, Qt::NoModifier, text)),
            "enter");
        QVERIFY(!ZEVEventHelpers::isEnterKey(QEvent(QEvent::FocusIn)));
    }
};

QTEST_MAIN(tst_ZEVUtilities)
#include "tst_ZEVUtilities.moc"
