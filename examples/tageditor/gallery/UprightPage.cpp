// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/UprightPage.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <QBuffer>
#include <QColorSpace>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int Edge = 150; ///< of a well, in points

/// Has a top, a left side and letters, so that no turn looks like another.
QImage picture(const QColorSpace &space = QColorSpace::SRgb)
{
    QImage image(240, 160, QImage::Format_RGB32);
    image.fill(QColor(46, 64, 87));
    QPainter painter(&image);
    painter.fillRect(0, 0, 240, 40, QColor(209, 73, 91));
    painter.fillRect(0, 0, 40, 160, QColor(237, 174, 73));
    QFont font = painter.font();
    font.setPixelSize(60);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(40, 40, 200, 120), Qt::AlignCenter, u"Up"_s);
    painter.end();
    image.setColorSpace(QColorSpace::SRgb);
    image.convertToColorSpace(space);
    return image;
}

/// As a camera stores it that was held so, by the tag Orientation of TIFF 6.0.
QImage stored(const QImage &upright, int orientation)
{
    const bool isMirrored = orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    constexpr int degrees[] = {0, 0, 180, 180, 90, -90, -90, 90};
    const QImage turned = upright.transformed(QTransform().rotate(degrees[orientation - 1]));
    return isMirrored ? turned.mirrored(true, false) : turned;
}

QByteArray jpeg(const QImage &image, int orientation)
{
    QBuffer buffer;
    image.save(&buffer, "JPG", 95);
    const QByteArray exif = QByteArray("\xFF\xE1\0\x22"
                                       "Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0",
                                       28)
        + char(orientation) + QByteArray(7, '\0');
    QByteArray bytes = buffer.data();
    return bytes.insert(2, exif);
}

QByteArray png(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

void addWell(QGridLayout *grid, const QString &title, const QByteArray &artwork)
{
    const int index = grid->count() / 2, columns = 4;
    auto *const well = new ZEVDragImageView;
    well->setFixedSize(Edge, Edge);
    well->setBitmapData(artwork);
    auto *const label = new QLabel(title);
    label->setAlignment(Qt::AlignCenter);
    grid->addWidget(well, index / columns * 2, index % columns);
    grid->addWidget(label, index / columns * 2 + 1, index % columns);
}

} // namespace

QWidget *uprightPage(QWidget *parent)
{
    auto *const page = new QWidget(parent);
    auto *const grid = new QGridLayout(page);
    for (int orientation = 1; orientation <= 8; ++orientation)
        addWell(grid, u"Orientation %1"_s.arg(orientation),
                jpeg(stored(picture(), orientation), orientation));
    addWell(grid, u"Display P3"_s, png(picture(QColorSpace::DisplayP3)));
    addWell(grid, u"Adobe RGB"_s, png(picture(QColorSpace::AdobeRgb)));
    addWell(grid, u"Cut short"_s, jpeg(picture(), 1).chopped(2000));
    addWell(grid, u"No image"_s, "Banana");
    grid->setRowStretch(grid->rowCount(), 1);
    return page;
}
