// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/ZEVImageCompleteness_p.h>

#include <ZEVGlobalUtils/Images/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/ZEVJPEGMarkers_p.h>

namespace {

/// A progressive picture has about ten scans; thousands of them keep a decoder busy for minutes.
constexpr int MostScans = 100;

/// The length of the colour table that the packed field announces.
int colorTableSize(quint8 packed) { return (packed & 0x80) != 0 ? 3 << ((packed & 7) + 1) : 0; }

/// The position behind a run of sub-blocks and the empty one that ends it.
quint64 subBlocksEnd(ZEVByteReader &reader, quint64 at)
{
    for (quint8 length = reader.byte(at); length > 0; length = reader.byte(at))
        at += 1 + length;
    return at + 1;
}

/// GIF89a specification: extensions may come before the first image.
bool isGifComplete(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    quint64 at = 13ULL + colorTableSize(reader.byte(10));
    while (reader.byte(at) == 0x21)
        at = subBlocksEnd(reader, at + 2);
    if (reader.byte(at) != 0x2C)
        return false;
    const quint64 data = at + 10 + colorTableSize(reader.byte(at + 9)) + 1;
    subBlocksEnd(reader, data);
    return !reader.hasReadPastEnd();
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
        return ZEVJPEGMarkers::endsAfterScans(bytes, MostScans);
    case ZEVImageIdentification::GIF:
        return isGifComplete(bytes);
    case ZEVImageIdentification::BMP:
        return isBmpComplete(identification.pixelSize, bytes);
    default:
        return identification.format != ZEVImageIdentification::Unknown;
    }
}
