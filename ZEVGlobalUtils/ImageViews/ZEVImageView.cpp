// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVImageView.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVSmoothDrawing_p.h>

#include <QPainter>

ZEVImageView::ZEVImageView(QWidget *parent)
    : QWidget(parent)
{
}

void ZEVImageView::setImage(const QImage &image)
{
    m_image = image;
    updateGeometry();
    update();
    Q_EMIT imageChanged(image);
}

void ZEVImageView::setImageScaling(ImageScaling scaling)
{
    m_imageScaling = scaling;
    update();
}

QSizeF ZEVImageView::fittedSize(QSizeF room) const
{
    const QSizeF own = m_image.deviceIndependentSize();
    switch (m_imageScaling) {
    case ScaleAxesIndependently:
        return room;
    case ScaleNone:
        return own;
    case ScaleProportionallyUpOrDown:
        return own.scaled(room, Qt::KeepAspectRatio);
    case ScaleProportionallyDown:
        break;
    }
    const bool fits = own.width() <= room.width() && own.height() <= room.height();
    return fits ? own : own.scaled(room, Qt::KeepAspectRatio);
}

QRectF ZEVImageView::drawingRectForBounds(const QRectF &bounds) const
{
    if (m_image.isNull())
        return {};
    QRectF place({}, fittedSize(bounds.size()));
    place.moveCenter(bounds.center());
    return place;
}

QSize ZEVImageView::sizeHint() const
{
    return m_image.isNull() ? QWidget::sizeHint() : m_image.deviceIndependentSize().toSize();
}

void ZEVImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawImage(painter);
}

void ZEVImageView::drawImage(QPainter &painter)
{
    if (!m_image.isNull())
        ZEVSmoothDrawing::drawImage(painter, drawingRectForBounds(rect()), m_image, m_image.rect());
}
