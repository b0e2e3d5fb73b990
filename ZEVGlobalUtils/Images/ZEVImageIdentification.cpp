// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/ZEVImageIdentification.h>

#include <ZEVGlobalUtils/Images/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/ZEVImageHeaders_p.h>

using namespace Qt::StringLiterals;

namespace {

struct Kind {
    ZEVImageIdentification::Format format;
    bool (*hasSignature)(QByteArrayView);
    QSize (*pixelSize)(QByteArrayView);
    const char *mimeType;
};

bool isTiff(QByteArrayView bytes)
{
    return bytes.startsWith(QByteArrayView("II*\0", 4)) || bytes.startsWith(QByteArrayView("MM\0*", 4));
}

/// Two letters say little: the size of the second header must be one that was ever in use.
bool isBmp(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    static constexpr quint32 sizes[] = {12, 16, 40, 52, 56, 64, 108, 124};
    return bytes.startsWith("BM") && std::ranges::find(sizes, reader.longWord(14)) != std::end(sizes);
}

bool isGif(QByteArrayView bytes) { return bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"); }
bool isJpeg(QByteArrayView bytes) { return bytes.startsWith("\xFF\xD8\xFF"); }
bool isPng(QByteArrayView bytes) { return bytes.startsWith("\x89PNG\r\n\x1A\n"); }

bool isWebp(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::LittleEndian);
    return reader.isTag(0, "RIFF") && reader.isTag(8, "WEBP");
}

/// ISO/IEC 14496-12: the brand, or one of those that the file says it is compatible with.
bool isAvif(QByteArrayView bytes)
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    if (!reader.isTag(4, "ftyp"))
        return false;
    const quint64 end = std::min<quint64>(reader.longWord(0), reader.size());
    for (quint64 brand = 8; brand + 4 <= end; brand += brand == 8 ? 8 : 4) { // a version follows the first
        if (reader.isTag(brand, "avif") || reader.isTag(brand, "avis"))
            return true;
    }
    return false;
}

constexpr Kind Kinds[] = {
    {ZEVImageIdentification::TIFF, isTiff, ZEVImageHeaders::tiffSize, "image/tiff"},
    {ZEVImageIdentification::BMP, isBmp, ZEVImageHeaders::bmpSize, "image/bmp"},
    {ZEVImageIdentification::GIF, isGif, ZEVImageHeaders::gifSize, "image/gif"},
    {ZEVImageIdentification::JPEG, isJpeg, ZEVImageHeaders::jpegSize, "image/jpeg"},
    {ZEVImageIdentification::PNG, isPng, ZEVImageHeaders::pngSize, "image/png"},
    {ZEVImageIdentification::WebP, isWebp, ZEVImageHeaders::webpSize, "image/webp"},
    {ZEVImageIdentification::AVIF, isAvif, ZEVImageHeaders::avifSize, "image/avif"},
};

} // namespace

ZEVImageIdentification ZEVImageIdentification::identificationWithData(QByteArrayView data)
{
    for (const Kind &kind : Kinds) {
        if (kind.hasSignature(data))
            return {kind.format, kind.pixelSize(data)};
    }
    return {};
}

QString ZEVImageIdentification::mimeType() const
{
    for (const Kind &kind : Kinds) {
        if (kind.format == format)
            return QString::fromLatin1(kind.mimeType);
    }
    return {};
}
