// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVImageHeaders_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVJPEGMarkers_p.h>

#include <limits>

QSize ZEVImageHeaders::checkedSize(qint64 width, qint64 height)
{
    constexpr qint64 Largest = std::numeric_limits<int>::max();
    const bool fits = width > 0 && height > 0 && width <= Largest && height <= Largest;
    return fits ? QSize(int(width), int(height)) : QSize();
}

/// TIFF 6.0: an entry of the first directory, which is a SHORT (3) or a LONG (4).
std::optional<quint32> ZEVImageHeaders::tiffValue(QByteArrayView bytes, quint16 tag)
{
    ZEVByteReader reader(bytes,
                         bytes.startsWith('I') ? ZEVByteReader::LittleEndian : ZEVByteReader::BigEndian);
    const quint64 directory = reader.longWord(4);
    const int count = reader.word(directory);
    for (int index = 0; index < count && !reader.hasReadPastEnd(); ++index) {
        const quint64 entry = directory + 2 + 12ULL * index;
        if (reader.word(entry) != tag)
            continue;
        const quint32 value =
            reader.word(entry + 2) == 3 ? reader.word(entry + 8) : reader.longWord(entry + 8);
        return reader.hasReadPastEnd() ? std::nullopt : std::optional(value);
    }
    return std::nullopt;
}

QSize ZEVImageHeaders::tiffSize(QByteArrayView bytes)
{
    constexpr quint16 ImageWidth = 256, ImageLength = 257;
    return checkedSize(tiffValue(bytes, ImageWidth).value_or(0), tiffValue(bytes, ImageLength).value_or(0));
}

/// The oldest header (12 bytes) has words, all others have long words and a height that is negative where the
/// rows run downwards.
QSize ZEVImageHeaders::bmpSize(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    if (reader.longWord(14) == 12)
        return checkedSize(reader.word(18), reader.word(20));
    return checkedSize(qint32(reader.longWord(18)), std::abs(qint64(qint32(reader.longWord(22)))));
}

QSize ZEVImageHeaders::gifSize(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    return checkedSize(reader.word(6), reader.word(8));
}

QSize ZEVImageHeaders::jpegSize(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    const auto frame = ZEVJPEGMarkers::frameHeader(bytes);
    return frame ? checkedSize(reader.word(*frame + 5), reader.word(*frame + 3)) : QSize();
}

QSize ZEVImageHeaders::pngSize(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    return reader.isTag(12, "IHDR") ? checkedSize(reader.longWord(16), reader.longWord(20)) : QSize();
}

/// RFC 9649: the canvas of the extended form, else the frame of the lossy or of the lossless one.
QSize ZEVImageHeaders::webpSize(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    if (reader.isTag(12, "VP8X")) {
        const quint32 height = reader.word(27) | quint32(reader.byte(29)) << 16;
        return checkedSize((reader.longWord(24) & 0xFFFFFF) + 1, reader.hasReadPastEnd() ? 0 : height + 1);
    }
    if (reader.isTag(12, "VP8L") && reader.byte(20) == 0x2F) {
        const quint32 bits = reader.longWord(21);
        return reader.hasReadPastEnd() ? QSize()
                                       : checkedSize((bits & 0x3FFF) + 1, (bits >> 14 & 0x3FFF) + 1);
    }
    if (reader.isTag(12, "VP8 ") && (reader.longWord(22) >> 8) == 0x2A019D)
        return checkedSize(reader.word(26) & 0x3FFF, reader.word(28) & 0x3FFF);
    return {};
}
