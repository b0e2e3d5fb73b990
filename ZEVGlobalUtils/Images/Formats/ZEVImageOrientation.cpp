// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVImageOrientation_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageHeaders_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVJPEGMarkers_p.h>

namespace {

constexpr QByteArrayView ExifPrefix("Exif\0\0", 6);

QByteArrayView withoutPrefix(QByteArrayView exif)
{
    return exif.startsWith(ExifPrefix) ? exif.sliced(ExifPrefix.size()) : exif;
}

QByteArrayView part(QByteArrayView bytes, quint64 at, quint64 length)
{
    const quint64 size = quint64(bytes.size());
    return at > size || length > size - at ? QByteArrayView()
                                           : bytes.sliced(qsizetype(at), qsizetype(length));
}

/// PNG specification, third edition: the chunk eXIf, which comes before the end of the file or nowhere.
QByteArrayView pngExif(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    for (quint64 at = 8; !reader.hasReadPastEnd(); at += 12ULL + reader.longWord(at)) {
        if (reader.isTag(at + 4, "eXIf"))
            return part(bytes, at + 8, reader.longWord(at));
    }
    return {};
}

/// RFC 9649: the chunk EXIF of the extended form; chunks have even lengths.
QByteArrayView webpExif(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    if (!reader.isTag(12, "VP8X"))
        return {};
    for (quint64 at = 12; !reader.hasReadPastEnd(); at += 8ULL + (reader.longWord(at + 4) + 1ULL) / 2 * 2) {
        if (reader.isTag(at, "EXIF"))
            return part(bytes, at + 8, reader.longWord(at + 4));
    }
    return {};
}

QByteArrayView tiffOf(const ZEVImageIdentification &identification, QByteArrayView bytes)
{
    switch (identification.format) {
    case ZEVImageIdentification::TIFF:
        return bytes;
    case ZEVImageIdentification::JPEG:
        return withoutPrefix(ZEVJPEGMarkers::applicationData(bytes, ExifPrefix));
    case ZEVImageIdentification::PNG:
        return withoutPrefix(pngExif(bytes));
    case ZEVImageIdentification::WebP:
        return withoutPrefix(webpExif(bytes));
    default:
        return {}; // the boxes of AVIF turn the picture as it is decoded
    }
}

} // namespace

int ZEVImageOrientation::orientation(const ZEVImageIdentification &identification, QByteArrayView bytes)
{
    constexpr quint16 Orientation = 274;
    const quint32 value = ZEVImageHeaders::tiffValue(tiffOf(identification, bytes), Orientation).value_or(1);
    return value >= 1 && value <= 8 ? int(value) : 1;
}

QImage ZEVImageOrientation::upright(const QImage &stored, int orientation)
{
    switch (orientation) {
    case 2:
        return stored.mirrored(true, false);
    case 3:
        return stored.mirrored(true, true);
    case 4:
        return stored.mirrored(false, true);
    case 5:
        return stored.mirrored(true, false).transformed(QTransform().rotate(-90));
    case 6:
        return stored.transformed(QTransform().rotate(90));
    case 7:
        return stored.mirrored(true, false).transformed(QTransform().rotate(90));
    case 8:
        return stored.transformed(QTransform().rotate(-90));
    default:
        return stored;
    }
}
