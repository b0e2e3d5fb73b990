// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVImageCompleteness_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVJPEGMarkers_p.h>

#include <limits>

namespace {

/// Pixels that are decoded at all; JPEGs are read at a fraction of their size.
constexpr quint64 MostPixels = 128'000'000, MostJpegPixels = 500'000'000;
/// A progressive picture has about ten scans, each of which runs over all pixels; thousands of them keep a
/// decoder busy for minutes.
constexpr quint64 MostPixelsOfAllScans = 400'000'000;
/// What has several scans is held as coefficients, two bytes each, until the last one has come.
constexpr quint64 MostCoefficientBytes = 192ULL * 1024 * 1024;
/// A block of 64 pixels takes at least two bits where every block is coded.
constexpr quint64 MostPixelsInByte = 256;

quint64 pixels(const QSize &size) { return quint64(size.width()) * quint64(size.height()); }

/// The length of the colour table that the packed field announces.
int colorTableSize(quint8 packed) { return (packed & 0x80) != 0 ? 3 << ((packed & 7) + 1) : 0; }

/// The position behind a run of sub-blocks and the empty one that ends it.
quint64 subBlocksEnd(ZEVByteReader &reader, quint64 at)
{
    for (quint8 length = reader.byte(at); length > 0; length = reader.byte(at))
        at += 1 + length;
    return at + 1;
}

/// GIF89a specification: the position of the next image behind the extensions; something else stands there
/// behind the last one.
quint64 nextGifImage(ZEVByteReader &reader, quint64 at)
{
    while (reader.byte(at) == 0x21)
        at = subBlocksEnd(reader, at + 2);
    return at;
}

bool isGifImage(ZEVByteReader &reader, quint64 at) { return reader.byte(at) == 0x2C; }

quint64 gifImageEnd(ZEVByteReader &reader, quint64 at)
{
    return subBlocksEnd(reader, at + 10 + colorTableSize(reader.byte(at + 9)) + 1);
}

quint64 firstGifImage(ZEVByteReader &reader)
{
    return nextGifImage(reader, 13ULL + colorTableSize(reader.byte(10)));
}

bool isGifComplete(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    const quint64 first = firstGifImage(reader);
    if (!isGifImage(reader, first))
        return false;
    gifImageEnd(reader, first);
    return !reader.hasReadPastEnd();
}

bool isGifAnimated(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    const quint64 first = firstGifImage(reader);
    return isGifImage(reader, first) && isGifImage(reader, nextGifImage(reader, gifImageEnd(reader, first)));
}

/// PNG specification, third edition: the chunk acTL comes before the pixels.
bool isPngAnimated(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    for (quint64 at = 8; !reader.hasReadPastEnd() && !reader.isTag(at + 4, "IDAT");
         at += 12ULL + reader.longWord(at)) {
        if (reader.isTag(at + 4, "acTL"))
            return true;
    }
    return false;
}

/// RFC 9649: a flag of the extended form.
bool isWebpAnimated(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    return reader.isTag(12, "VP8X") && (reader.byte(20) & 2) != 0;
}

/// Every encoder ends with the marker, but some programs cut it off; what counts is that no pixel is missing.
bool isJpegComplete(const QSize &pixelSize, QByteArrayView bytes)
{
    const auto frame = ZEVJPEGMarkers::frame(bytes);
    if (!frame || (frame->isSequential && pixels(pixelSize) / MostPixelsInByte > quint64(bytes.size())))
        return false;
    const auto scans = ZEVJPEGMarkers::scans(bytes, std::numeric_limits<int>::max());
    return scans.count > 0 && (scans.areEnded || ZEVJPEGMarkers::hasAllPixels(bytes));
}

bool isJpegWorthDecoding(const QSize &pixelSize, QByteArrayView bytes)
{
    const auto frame = ZEVJPEGMarkers::frame(bytes);
    const quint64 all = pixels(pixelSize);
    if (!frame || all > MostJpegPixels)
        return !frame;
    const int most = int(MostPixelsOfAllScans / std::max<quint64>(all, 1));
    const int scans = ZEVJPEGMarkers::scans(bytes, std::max(most, 1)).count;
    if (frame->isSequential && scans <= 1)
        return true;
    return scans <= most && all * 2 * quint64(frame->components) <= MostCoefficientBytes;
}

/// Rows without compression, or with colour masks, have a length that is known beforehand.
bool isBmpComplete(const QSize &pixelSize, QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    const quint32 headerSize = reader.longWord(14);
    const quint32 compression = headerSize == 12 ? 0 : reader.longWord(30);
    if (compression != 0 && compression != 3)
        return true;
    const quint64 bits = reader.word(headerSize == 12 ? 24 : 28);
    const quint64 row = (quint64(pixelSize.width()) * bits + 31) / 32 * 4;
    const quint64 begin = std::max<quint64>(reader.longWord(10), 14ULL + headerSize);
    return !reader.hasReadPastEnd() && begin + row * quint64(pixelSize.height()) <= reader.size();
}

} // namespace

bool ZEVImageCompleteness::isComplete(const ZEVImageIdentification &identification, QByteArrayView bytes)
{
    switch (identification.format) {
    case ZEVImageIdentification::JPEG:
        return isJpegComplete(identification.pixelSize, bytes);
    case ZEVImageIdentification::GIF:
        return isGifComplete(bytes);
    case ZEVImageIdentification::BMP:
        return isBmpComplete(identification.pixelSize, bytes);
    default:
        return identification.format != ZEVImageIdentification::Unknown;
    }
}

bool ZEVImageCompleteness::isWorthDecoding(const ZEVImageIdentification &identification, QByteArrayView bytes)
{
    return identification.format == ZEVImageIdentification::JPEG
        ? isJpegWorthDecoding(identification.pixelSize, bytes)
        : pixels(identification.pixelSize) <= MostPixels;
}

bool ZEVImageCompleteness::isAnimated(const ZEVImageIdentification &identification, QByteArrayView bytes)
{
    switch (identification.format) {
    case ZEVImageIdentification::GIF:
        return isGifAnimated(bytes);
    case ZEVImageIdentification::PNG:
        return isPngAnimated(bytes);
    case ZEVImageIdentification::WebP:
        return isWebpAnimated(bytes);
    default:
        return false;
    }
}
