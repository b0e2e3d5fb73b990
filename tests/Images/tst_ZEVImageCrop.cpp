// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageInsets.h>

using namespace Qt::StringLiterals;
using namespace ZEVImageCrop;
using namespace ZEVImageInsets;

namespace {

constexpr auto Over = QPainter::CompositionMode_SourceOver;

/// Every pixel says where it is: red grows to the right, green downwards.
QImage map(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int at = 0; at < size.width() * size.height(); ++at) {
        const int x = at % size.width(), y = at / size.width();
        image.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), 0));
    }
    return image;
}

/// Nine fields of ten pixels; every one has its own red and green, and its top row is blue.
QImage fields()
{
    QImage image(30, 30, QImage::Format_RGB32);
    for (int at = 0; at < 900; ++at)
        image.setPixel(at % 30, at / 30,
                       qRgb(at % 30 / 10 * 100, at / 300 * 100, at / 30 % 10 == 0 ? 255 : 0));
    return image;
}

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The field and row of a pixel that fields() has been drawn to.
QString field(const QImage &image, int x, int y)
{
    const QRgb pixel = image.pixel(x, y);
    const QString name = QString::number(qRed(pixel) / 100) + u' ' + QString::number(qGreen(pixel) / 100);
    return qAlpha(pixel) == 0 ? u"none"_s : qBlue(pixel) > 200 ? name + u'^' : name;
}

} // namespace

class tst_ZEVImageCrop : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsSeenOfAPicture()
    {
        const QSize wide(1000, 500), tall(500, 1000), square(100, 100);
        const std::tuple<QSize, int, QSize, QRectF> rows[] = {
            {wide, 0, square, {250, 0, 500, 500}},
            {wide, 1, square, {0, 0, 500, 500}},
            {wide, 2, square, {500, 0, 500, 500}},
            {wide, 4, square, {0, 0, 500, 500}},
            {tall, 0, square, {0, 250, 500, 500}},
            {tall, 1, square, {0, 0, 500, 500}},
            {tall, 2, square, {0, 500, 500, 500}},
            {tall, 4, square, {0, 500, 500, 500}},
            {{1500, 1000}, 0, {10, 10}, {300, 0, 1000, 1000}}, // half an offset is rounded away from zero
            {{300, 301}, 3, square, {0, 0, 300, 301}}, // it fits, though not quite
        };
        for (const auto &[picture, method, size, seen] : rows) {
            const QImage fitted = imageToFitSize(map(picture), size, FitMethod(method));
            for (QPoint at :
                 {QPoint(0, 0), QPoint(size.width() - 1, 0), QPoint(size.width() / 2, size.height() - 1)}) {
                const QRgb pixel = fitted.pixel(at);
                const qreal right = seen.x() + (at.x() + 0.5) * seen.width() / size.width();
                const qreal down = seen.y() + (at.y() + 0.5) * seen.height() / size.height();
                // What is seen, but for the size of a pixel and a filter that rounds down.
                const bool isThere =
                    std::abs(qRed(pixel) - right * 255 / picture.width()) <= 3 + 255 / picture.width()
                    && std::abs(qGreen(pixel) - down * 255 / picture.height()) <= 3 + 255 / picture.height();
                COMPARE_ROW(seen, isThere && qAlpha(pixel) == 255, true);
            }
        }
    }

    void aScaledPictureIsLetterboxed()
    {
        QImage line(1, 4000, QImage::Format_RGB32);
        line.fill(Qt::red);
        QVERIFY(imageScaledToFitSize(line, {100, 100}).pixelColor(50, 50).alpha() > 100); // not nothing
        const QImage fitted = imageScaledToFitSize(map({1000, 500}), {100, 100}, 2);
        const std::pair<int, int> rows[] = {{49, 0}, {50, 255}, {149, 255}, {150, 0}};
        for (const auto &[y, alpha] : rows)
            COMPARE_ROW(y, qAlpha(fitted.pixel(199, y)), alpha);
    }

    void fineDetailIsAveraged()
    {
        for (bool down : {true, false}) {
            QImage stripes(1000, 1000, QImage::Format_Grayscale8);
            for (int at = 0; at < 1'000'000; ++at)
                stripes.scanLine(at / 1000)[at % 1000] = (down ? at % 1000 : at / 1000) % 2 != 0 ? 255 : 0;
            QImage target = canvas(13, 13);
            QPainter painter(&target);
            painter.scale(0.0131, 0.0117);
            drawInRect(stripes, painter, QRectF(0, 0, 1000, 1000), Over, 1, Fit);
            for (int place = 1; place < 10; ++place)
                COMPARE_ROW(place, std::abs(qRed(target.pixel(place, place)) - 127) <= 2, true);
        }
    }

    void opacityAndOperation()
    {
        QImage target = canvas(10, 10);
        QPainter painter(&target);
        painter.setOpacity(0.5);
        drawInRect(map({8, 8}), painter, QRectF(0, 0, 10, 10), Over, 0.5F, FillCentre);
        QVERIFY(std::abs(qAlpha(target.pixel(5, 5)) - 64) <= 1);
        drawInRect(map({8, 8}), painter, QRectF(0, 0, 5, 10), QPainter::CompositionMode_Clear, 1, FillCentre);
        QVERIFY(qAlpha(target.pixel(2, 5)) < 64);
        QVERIFY(qAlpha(target.pixel(7, 5)) > 60);
    }

    void nothingComesOfNothing()
    {
        QCOMPARE(imageToFitSize({}, {4, 4}, Fit).pixel(2, 2), 0U);
        for (QSizeF size :
             {QSizeF(0, 4), QSizeF(4, -1), QSizeF(1e9, 1e9), QSizeF(qInf(), 4), QSizeF(4, qQNaN())})
            QVERIFY(imageCroppedToFitSize(map({4, 4}), size).isNull());
    }

    void threePartsFromTheOrigin()
    {
        QImage target = canvas(100, 60);
        QPainter painter(&target);
        drawAsThreePartImageInRect(fields(), painter, {10, 10, 80, 40}, {}, 10, Over, 1, true);
        const std::tuple<int, int, QString> rows[] = {
            {0, 0, u"0 0^"_s},  {9, 20, u"0 1"_s},  {10, 20, u"1 1"_s},  {69, 20, u"1 1"_s},
            {70, 39, u"2 2"_s}, {79, 20, u"2 1"_s}, {80, 20, u"none"_s}, {40, 40, u"none"_s},
        };
        for (const auto &[x, y, name] : rows)
            COMPARE_ROW(x, field(target, x, y), name);
        drawAsThreePartImageInRect(fields(), painter, {0, 0, 30, 20}, {0, 10, 99, 10}, 10, Over, 1, false);
        QCOMPARE(field(target, 2, 10), u"0 1"_s); // a part of the picture, upside down
        QCOMPARE(field(target, 25, 19), u"2 1^"_s);
        drawAsThreePartImageInRect(fields(), painter, {0, 0, 30, 30}, {}, 20, Over, 1,
                                   true); // no middle is left
        QCOMPARE(field(target, 25, 15), u"2 1"_s);
    }

    void aMiddleLiesOnWholePoints()
    {
        QImage target = canvas(200, 30);
        QPainter painter(&target);
        painter.scale(10, 1);
        drawAsThreePartImageInRect(fields(), painter, {0, 0, 19.6, 30}, {}, 4.6, Over, 1, true);
        const std::pair<int, QString> rows[] = {
            {44, u"0 1"_s}, {48, u"none"_s}, {52, u"0 1"_s}, {100, u"1 1"_s}};
        for (const auto &[x, name] : rows)
            COMPARE_ROW(x, field(target, x, 15), name);
        QImage upright = canvas(30, 200);
        QPainter down(&upright);
        down.scale(1, 10);
        drawAsNinePartImageInRect(fields(), down, {0, 0, 30, 19.6}, {}, 10, 4.6, Over, 1, true);
        for (const int x : {5, 25})
            COMPARE_ROW(x, field(upright, x, 48), u"none"_s);
    }

    void ninePartsEitherWayUp()
    {
        for (bool upright : {true, false}) {
            QImage target = canvas(100, 60);
            QPainter painter(&target);
            drawAsNinePartImageInRect(fields(), painter, {50, 50, 80, 40}, {}, 10, 10, Over, 1, upright);
            const std::tuple<int, int, QString> rows[] = {
                {0, 0, u"0 0^"_s},   {9, 9, u"0 0"_s},    {10, 5, u"1 0"_s},  {79, 0, u"2 0^"_s},
                {5, 25, u"0 1"_s},   {40, 25, u"1 1"_s},  {75, 29, u"2 1"_s}, {40, 39, u"1 2"_s},
                {70, 30, u"2 2^"_s}, {85, 25, u"none"_s},
            };
            for (const auto &[x, y, name] : rows)
                COMPARE_ROW(x, field(target, x, upright ? y : 39 - y), name);
        }
    }
};

QTEST_GUILESS_MAIN(tst_ZEVImageCrop)
#include "tst_ZEVImageCrop.moc"
