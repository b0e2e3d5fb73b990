// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Images/Drawing/ZEVDrawingTrait.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageDrawingTraits.h>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace ZEVImageDrawingTraits;

namespace {

/// A black square in the middle half of nothing, without its top left pixel.
QImage square(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(size / 4, size / 4, size / 2, size / 2, Qt::black);
    image.setPixelColor(size / 4, size / 4, Qt::transparent);
    return image;
}

QImage filled(int width, int height, const QColor &color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

struct Drawing {
    QRectF rect = {0, 0, 16, 16};
    double fraction = 1;
    bool upright = true;
    double ratio = 1;
    QTransform transform = {};
};

/// What comes of it on blue, 24 by 24 points.
QImage drawn(const QImage &image, const ZEVDrawingTrait &trait, const Drawing &how = {})
{
    QImage canvas(QSize(24, 24) * how.ratio, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(how.ratio);
    canvas.fill(Qt::blue);
    QPainter painter(&canvas);
    painter.setTransform(how.transform);
    drawInRect(image, painter, how.rect, {1, 1, 2, 2}, trait, QPainter::CompositionMode_Clear, how.fraction,
               how.upright);
    return canvas;
}

bool isNear(QRgb one, const QColor &other, int tolerance = 2)
{
    return std::abs(qRed(one) - other.red()) <= tolerance
        && std::abs(qGreen(one) - other.green()) <= tolerance
        && std::abs(qBlue(one) - other.blue()) <= tolerance;
}

ZEVDrawingTrait white() { return ZEVDrawingTrait::defaultWhiteTrait(); }

ZEVDrawingTrait glowing()
{
    ZEVDrawingTrait trait = white();
    trait.innerGlowColor = QColor(255, 0, 0, 204);
    trait.innerGlowRadius = 4;
    return trait;
}

} // namespace

class tst_ZEVImageDrawingTraits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSampleIsTheLuminanceOverWhite()
    {
        const std::pair<QColor, int> rows[] = {
            {Qt::black, 0}, {Qt::white, 255}, {Qt::transparent, 255}, {QColor(0, 0, 0, 128), 127},
            {Qt::red, 76},  {Qt::green, 150}, {Qt::blue, 29},         {QColor(128, 128, 128, 51), 230},
        };
        for (const auto &[color, sample] : rows)
            COMPARE_ROW(color, int(*stencilMask(filled(1, 1, color)).constBits()), sample);
    }

    void theInverseIsTheSameBytesInGrey()
    {
        const QImage inverse = CGImageCreateInvertedMaskWithMask(stencilMask(square(8)));
        QCOMPARE(inverse.format(), QImage::Format_Grayscale8);
        QVERIFY(qGray(inverse.pixel(0, 0)) == 255);
        QVERIFY(qGray(inverse.pixel(4, 4)) == 0);
        QVERIFY(CGImageCreateInvertedMaskWithMask(std::nullopt).isNull());
        const QRegularExpression nonMask(u"^Attempting to invert non-mask: QImage"_s);
        QTest::ignoreMessage(QtWarningMsg, nonMask);
        QCOMPARE(CGImageCreateInvertedMaskWithMask(filled(2, 2, Qt::white)).pixel(1, 1), qRgb(255, 255, 255));
        QTest::ignoreMessage(QtWarningMsg, nonMask);
        QTest::ignoreMessage(QtWarningMsg, "Image to be inverted contains no data");
        QVERIFY(CGImageCreateInvertedMaskWithMask(QImage()).isNull());
    }

    void aGradientNeedsTwoColors()
    {
        ZEVDrawingTrait trait;
        trait.setGradientStartColor(Qt::red);
        QVERIFY(!trait.needsGradient());
        trait.setGradientEndColor(Qt::green);
        QVERIFY(trait.needsGradient());
        QVERIFY(ZEVDrawingTrait(trait) == trait);
        trait.setGradientStartColor({});
        QVERIFY(!trait.needsGradient());
        trait.setGradient({{0, Qt::red}, {1, Qt::blue}});
        QVERIFY(trait.needsGradient());
        QVERIFY(!ZEVDrawingTrait(trait).needsGradient()); // kept
    }

    void theBody()
    {
        const QTransform turned = QTransform().translate(16, 0).rotate(90);
        const std::tuple<const char *, QImage, QPoint, QColor> rows[] = {
            {"inside", drawn(square(16), white()), {7, 7}, Qt::white},
            {"outside", drawn(square(16), white()), {3, 7}, Qt::blue},
            {"of a new trait", drawn(square(16), ZEVDrawingTrait()), {7, 7}, QColor(85, 85, 85)},
            {"nothing",
             drawn(filled(16, 16, Qt::transparent), ZEVDrawingTrait::defaultTrait()),
             {8, 8},
             Qt::blue},
            {"all", drawn(filled(16, 16, Qt::black), white()), {15, 15}, Qt::white},
            {"beside it all", drawn(filled(16, 16, Qt::black), white()), {16, 15}, Qt::blue},
            {"grey", drawn(filled(16, 16, QColor(51, 51, 51)), white()), {8, 8}, QColor(204, 204, 255)},
            {"half", drawn(square(16), white(), {.fraction = 0.5}), {7, 7}, QColor(128, 128, 255)},
            {"upright", drawn(square(16), white()), {4, 4}, Qt::blue},
            {"upside down", drawn(square(16), white(), {.upright = false}), {4, 11}, Qt::blue},
            {"enlarged", drawn(square(4), white()), {7, 7}, Qt::blue},
            {"at two pixels a point", drawn(square(16), white(), {.ratio = 2}), {9, 9}, Qt::blue},
            {"in its place", drawn(square(16), white(), {.rect = {8, 8, 16, 16}}), {12, 12}, Qt::blue},
            {"turned", drawn(square(16), white(), {.transform = turned}), {11, 4}, Qt::blue},
        };
        for (const auto &[name, image, place, color] : rows)
            COMPARE_ROW(name, isNear(image.pixel(place), color), true);
    }

    void theGradientBeginsAtTheTop()
    {
        for (bool upright : {true, false}) {
            const auto &trait = ZEVDrawingTrait::blueHighlightedTrait();
            const QImage image = drawn(filled(16, 16, Qt::black), trait, {.upright = upright});
            QVERIFY(isNear(image.pixel(3, upright ? 0 : 15), QColor(32, 90, 221)));
            QVERIFY(isNear(image.pixel(3, upright ? 15 : 0), QColor(44, 148, 237)));
            QVERIFY(isNear(image.pixel(3, 8), QColor(38, 119, 229)));
        }
        ZEVDrawingTrait trait;
        trait.setGradient({{0.25, Qt::red}, {0.75, Qt::blue}});
        const QImage image = drawn(filled(16, 16, Qt::black), trait);
        for (const int end : {0, 15})
            QVERIFY(isNear(image.pixel(3, end), Qt::red) || isNear(image.pixel(3, end), Qt::blue));
        QCOMPARE(qRed(image.pixel(3, 0)) > 128, qRed(image.pixel(3, 5)) > 128);
        QCOMPARE(qRed(image.pixel(3, 15)) > 128, qRed(image.pixel(3, 10)) > 128);
    }

    void theDropShadowFallsBelow()
    {
        ZEVDrawingTrait trait = white();
        trait.dropShadowColor = Qt::red;
        trait.dropShadowOffset = {2, 1};
        for (bool upright : {true, false}) {
            const QImage image = drawn(square(16), trait, {.upright = upright});
            QVERIFY(isNear(image.pixel(8, 11), Qt::white)); // the body lies over it
            QVERIFY(isNear(image.pixel(8, 12), Qt::red));
            QVERIFY(isNear(image.pixel(13, 8), Qt::red));
            QVERIFY(isNear(image.pixel(8, 3), Qt::blue));
            QVERIFY(isNear(image.pixel(14, 8), Qt::blue));
        }
        QVERIFY(isNear(drawn(square(16), trait, {.ratio = 2}).pixel(16, 25), Qt::red));
        trait.dropShadowColor = QColor();
        QVERIFY(isNear(drawn(square(16), trait).pixel(8, 12), Qt::black));
        trait.clipsShadow = true;
        trait.color = Qt::transparent;
        QVERIFY(isNear(drawn(square(16), trait).pixel(8, 8), Qt::blue)); // outside the shape
        QVERIFY(isNear(drawn(square(16), trait).pixel(8, 12), Qt::black));
        QVERIFY(isNear(drawn(filled(16, 16, Qt::black), trait).pixel(16, 8), Qt::blue)); // in the rectangle
        trait.dropShadowOffset = {1e12, 0};
        QVERIFY(isNear(drawn(square(16), trait).pixel(8, 12), Qt::blue));
    }

    /// An edge blurred by a Gaussian is its integral, the error function.
    void theGlowFadesAsAGaussianOfHalfItsRadius()
    {
        QImage half = filled(32, 16, Qt::transparent);
        QPainter(&half).fillRect(16, 0, 16, 16, Qt::black);
        for (int ratio : {1, 2}) {
            const QImage image = drawn(half, glowing(), {.rect = {0, 0, 32, 16}, .ratio = double(ratio)});
            QVERIFY(isNear(image.pixel(16 * ratio - 1, 8 * ratio), Qt::blue));
            for (int inside = 0; inside < 6; ++inside) {
                const double strength = 0.4 * std::erfc((inside + 0.5) / (ratio * 2 * std::sqrt(2)));
                const int green = int(std::lround(255 * (1 - strength)));
                const QRgb pixel = image.pixel(16 * ratio + inside, 8 * ratio);
                COMPARE_ROW(inside, isNear(pixel, QColor(255, green, green), 3), true);
            }
        }
    }

    void theGlowIsMadeFromTheRectangleAsGiven()
    {
        const std::tuple<const char *, Drawing, bool> rows[] = {
            {"at 0", {.rect = {8, 0, 8, 8}}, true},
            {"lower, flipped", {.rect = {8, 8, 8, 8}}, false}, // kept
            {"lower, not flipped", {.rect = {8, 8, 8, 8}, .upright = false}, true},
            {"translated", {.rect = {8, 0, 8, 8}, .transform = QTransform::fromTranslate(0, 8)}, true},
        };
        for (const auto &[name, how, glows] : rows) {
            const QPoint place = how.transform.map(how.rect.center()).toPoint();
            COMPARE_ROW(name, !isNear(drawn(square(8), glowing(), how).pixel(place), Qt::white, 20), glows);
        }
    }

    void theInnerShadowIsABandOverTheGlow()
    {
        ZEVDrawingTrait trait = glowing();
        trait.innerShadowColor = QColor(0, 0, 0, 128);
        trait.innerShadowOffset = {0, 2};
        QVERIFY(qRed(drawn(square(16), trait).pixel(8, 4)) < 130);
        trait.innerGlowRadius = 0;
        for (bool upright : {true, false}) {
            const QImage image = drawn(square(16), trait, {.upright = upright});
            QVERIFY(isNear(image.pixel(8, 4), QColor(127, 127, 127)));
            QVERIFY(isNear(image.pixel(8, 5), QColor(127, 127, 127)));
            QVERIFY(isNear(image.pixel(8, 6), Qt::white));
            QVERIFY(isNear(image.pixel(8, 3), Qt::blue));
        }
        trait.innerShadowOffset = {0, -1e12};
        QVERIFY(isNear(drawn(square(16), trait).pixel(8, 4), Qt::white));
    }

    void whatCannotBeDrawnIsLeftOut()
    {
        QCOMPARE(drawn({}, white()).pixel(8, 8), qRgb(0, 0, 255));
        for (const QRectF &rect : {QRectF(8, 8, -8, -8), QRectF(0, 0, 1e9, 1e9), QRectF(0, 0, qQNaN(), 5)})
            QCOMPARE(drawn(filled(4, 4, Qt::black), white(), {.rect = rect}).pixel(4, 4), qRgb(0, 0, 255));
        ZEVDrawingTrait trait = white();
        trait.innerGlowRadius = 1e18;
        QVERIFY(isNear(drawn(filled(4, 4, Qt::black), trait).pixel(4, 4), Qt::white));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVImageDrawingTraits)
#include "tst_ZEVImageDrawingTraits.moc"
