// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkLimit.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace {

constexpr int BestQuality = 92;
constexpr int PoorestQuality = 50;
constexpr int QualityStep = 14;
constexpr double Shrinking = 0.8; ///< where poorer quality is not enough
constexpr int SmallestEdge = 16; ///< in pixels

QByteArray encoded(const QImage &image, const char *format, int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, quality);
    return bytes;
}

/// A JPEG has no transparency, and black would stand in its place.
QImage onWhite(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

QImage scaledDown(const QImage &image, int longest)
{
    if (longest <= 0 || std::max(image.width(), image.height()) <= longest)
        return image;
    return image.scaled(longest, longest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The best quality that is small enough, or the poorest.
QByteArray jpeg(const QImage &image, qint64 most)
{
    QByteArray bytes;
    for (int quality = BestQuality; quality >= PoorestQuality; quality -= QualityStep) {
        bytes = encoded(image, "JPG", quality);
        if (most <= 0 || bytes.size() <= most)
            break;
    }
    return bytes;
}

} // namespace

bool ArtworkLimit::isKeptBy(const QByteArray &artwork) const
{
    const QSize size = ZEVImageIdentification::identificationWithData(artwork).pixelSize;
    return (pixels <= 0 || std::max(size.width(), size.height()) <= pixels)
        && (bytes <= 0 || artwork.size() <= bytes);
}

QByteArray ArtworkLimit::applied(const ZEVImageDescription &artwork) const
{
    const QByteArray &original = artwork.bitmapData();
    if (isKeptBy(original))
        return original;
    QImage image = scaledDown(artwork.image(), pixels);
    if (ZEVImageIdentification::identificationWithData(original).format == ZEVImageIdentification::PNG) {
        if (QByteArray png = encoded(image, "PNG"); isKeptBy(png))
            return png;
    }
    image = onWhite(image);
    QByteArray result = jpeg(image, bytes);
    while (!isKeptBy(result) && std::max(image.width(), image.height()) > SmallestEdge) {
        image = scaledDown(image, int(std::max(image.width(), image.height()) * Shrinking));
        result = jpeg(image, bytes);
    }
    return result;
}
