// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVSmoothDrawing_p.h>

#include <QPainter>

#include <cmath>

namespace {

/// How many pixels of the device \a target covers along its own axes, also where it is turned.
QSizeF devicePixels(const QPainter &painter, const QRectF &target)
{
    const QTransform transform = painter.deviceTransform();
    const qreal across = std::hypot(transform.m11(), transform.m12());
    const qreal down = std::hypot(transform.m21(), transform.m22());
    return {std::abs(target.width()) * across, std::abs(target.height()) * down};
}

int scaledLength(int length, qreal scale) { return std::max(1, int(std::lround(length * scale))); }

} // namespace

void ZEVSmoothDrawing::drawImage(QPainter &painter, const QRectF &target, const QImage &image,
                                 const QRectF &source)
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF pixels = devicePixels(painter, target);
    const qreal across = std::min<qreal>(1, pixels.width() / source.width());
    const qreal down = std::min<qreal>(1, pixels.height() / source.height());
    const QRect area = source.toAlignedRect() & image.rect();
    if (area.isEmpty() || (across == 1 && down == 1)) {
        painter.drawImage(target, image, source);
    } else {
        const QImage part = area == image.rect() ? image : image.copy(area);
        const QSize size(scaledLength(area.width(), across), scaledLength(area.height(), down));
        const qreal x = qreal(size.width()) / area.width(), y = qreal(size.height()) / area.height();
        const QRectF inPart = source.translated(-area.topLeft());
        painter.drawImage(target, part.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                          QRectF(inPart.x() * x, inPart.y() * y, inPart.width() * x, inPart.height() * y));
    }
    painter.restore();
}
