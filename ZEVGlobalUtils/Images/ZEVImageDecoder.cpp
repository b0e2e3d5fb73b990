// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/ZEVImageDecoder_p.h>

#include <ZEVGlobalUtils/Images/ZEVImageCompleteness_p.h>

#include <QBuffer>
#include <QImageReader>
#include <QPixelFormat>

namespace {

/// Qt's limit belongs to the process and a host may have lifted it; this one is ours. It is enough for 33
/// million pixels of 8 bits a channel.
constexpr qint64 MostDecodedBytes = 128LL * 1024 * 1024;

/// Palettes are decoded to true colour at times, so nothing counts as less than 32 bits. Only these two
/// formats can have more, and the reader of JPEG has no right answer where the header is damaged.
int bitsPerPixel(const QImageReader &reader, ZEVImageIdentification::Format format)
{
    const bool mayBeDeep = format == ZEVImageIdentification::PNG || format == ZEVImageIdentification::TIFF;
    const QImage::Format decoded = mayBeDeep ? reader.imageFormat() : QImage::Format_Invalid;
    return std::max(32, int(QImage::toPixelFormat(decoded).bitsPerPixel()));
}

bool fits(const QSize &size, int bits)
{
    return qint64(size.width()) * size.height() <= MostDecodedBytes / (bits / 8);
}

} // namespace

QImage ZEVImageDecoder::imageWithData(const QByteArray &data)
{
    const auto identification = ZEVImageIdentification::identificationWithData(data);
    if (!identification.pixelSize.isValid() || !ZEVImageCompleteness::isComplete(identification, data))
        return {};
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer, identification.mimeType().section(u'/', 1).toLatin1());
    reader.setAutoDetectImageFormat(false);
    // Asked twice, since the reader has to look into the file for its answer.
    if (!fits(identification.pixelSize, 32)
        || !fits(identification.pixelSize, bitsPerPixel(reader, identification.format)))
        return {};
    QImage image = reader.read();
    image.setDevicePixelRatio(1);
    return image;
}
