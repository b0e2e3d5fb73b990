// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPicture_p.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <QPainter>

void ZEVPreviewPicture::setImage(const QImage &image)
{
    m_image = image;
    m_scaled = QImage();
    update();
}

/// A pixel of the picture takes a pixel of the screen at most.
QSizeF ZEVPreviewPicture::fittedSize() const
{
    const QSizeF natural = QSizeF(m_image.size()) / devicePixelRatio();
    const QSizeF fitted = natural.scaled(size(), Qt::KeepAspectRatio);
    return fitted.width() < natural.width() ? fitted : natural;
}

void ZEVPreviewPicture::paintEvent(QPaintEvent *)
{
    if (m_image.isNull())
        return;
    const QSizeF fitted = fittedSize();
    const QSize pixels = (fitted * devicePixelRatio()).toSize().expandedTo({1, 1});
    if (m_scaled.size() != pixels)
        m_scaled = ZEVImageCrop::imageScaledToFitSize(m_image, pixels);
    QPainter(this).drawImage(ZEVCenteredRectWithSizeInRect(fitted, rect()), m_scaled);
}
