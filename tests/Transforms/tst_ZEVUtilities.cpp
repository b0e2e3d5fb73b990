// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVEventHelpers.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVFontWeightHelpers.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVDataMD5.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace ZEVFontWeightHelpers;

class tst_ZEVUtilities : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rectangles()
    {
        QCOMPARE(ZEVRectFromPoints({10, 20}, {4, 30}), QRectF(4, 20, 6, 10));
        QCOMPARE(ZEVExpandedRect({10, 10, 4, 4}, 3, -2), QRectF(8.5, 11, 7, 2));
        const QRectF ten(0, 0, 10, 10);
        QCOMPARE(ZEVCenteredRectWithSizeInRect({14, 3}, ten), QRectF(-2, 4, 14, 3)); // halves go upwards
        QCOMPARE(ZEVCenteredRectWithSizeInRect({3, 3}, ten.translated(-10, -10)), QRectF(-6, -6, 3, 3));
        QCOMPARE(ZEVCenteredRectWithSizeInRect({2.5, 3.4}, ten), QRectF(4, 3, 2, 4)); // edges, not the size
        QCOMPARE(ZEVCenteredRectWithSizeInRect({0, 0}, {0, 0, 0.99999999999999988, 1}), QRectF(0, 1, 0, 0));
    }

    void fontVariantsAreTheSystemsAtTheSameSize()
    {
        QFont serif(u"Serif"_s);
        serif.setPointSizeF(17.5);
        QCOMPARE(mediumVariant(serif).family(),
                 QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
        QCOMPARE(mediumVariant(serif).pointSizeF(), 17.5);
        serif.setPixelSize(23);
        QCOMPARE(semiBoldVariant(serif).pixelSize(), 23);
        QVERIFY(mediumVariant(serif).weight() < semiBoldVariant(serif).weight());
        QVERIFY(QFont::Bold < heavyVariant(serif).weight());
    }

    void digestsDarknessAndEnter()
    {
        QCOMPARE(ZEVDataMD5::MD5Hash("message digest"), u"f96b697d7cb7938d525a2f31aaf161d0");
        QVERIFY(ZEVAppearanceHelpers::isDark(u"AccessibleHighContrastDarkAqua"));
        QVERIFY(!ZEVAppearanceHelpers::isDark(u"dark"));
        QVERIFY(!ZEVAppearanceHelpers::isDark(QPalette(Qt::white)));
        QVERIFY(ZEVAppearanceHelpers::isDark(QPalette(Qt::black)));

        const auto isEnter = [](QEvent::Type type, const QString &text) {
            return ZEVEventHelpers::isEnterKey(QKeyEvent(type, Qt::Key_Return, Qt::NoModifier, text));
        };
        QVERIFY(isEnter(QEvent::KeyPress, u"\r"_s));
        QVERIFY(isEnter(QEvent::KeyPress, u"\x03"_s));
        QVERIFY(!isEnter(QEvent::KeyRelease, u"\r"_s));
        QVERIFY(!isEnter(QEvent::KeyPress, u"\r\r"_s));
        QVERIFY(!isEnter(QEvent::KeyPress, u"\n"_s));
        QVERIFY(!isEnter(QEvent::KeyPress, u""_s));
        QVERIFY(!ZEVEventHelpers::isEnterKey(QEvent(QEvent::FocusIn)));
    }
};

QTEST_MAIN(tst_ZEVUtilities)
#include "tst_ZEVUtilities.moc"
