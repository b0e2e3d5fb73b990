// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <QApplication>
#include <QBuffer>
#include <QPainter>

using namespace Qt::StringLiterals;

QByteArray cover()
{
    QImage image(300, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, 300);
    sky.setColorAt(0, QColor(0x20, 0x50, 0x90));
    sky.setColorAt(1, QColor(0xE0, 0xA0, 0x40));
    painter.fillRect(image.rect(), sky);
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ZEVDragImageView well; // drop, paste, drag out, copy, cut, clear, preview: all of it
    const auto tell = [&] {
        const auto &artwork = well.imageDescription();
        well.setWindowTitle(artwork ? artwork->imageDescription() : u"No artwork"_s);
    };
    QObject::connect(&well, &ZEVDragImageView::imageDescriptionChanged, &well, tell);
    well.setBitmapData(cover());
    well.resize(320, 320);
    well.show();
    return application.exec();
}
