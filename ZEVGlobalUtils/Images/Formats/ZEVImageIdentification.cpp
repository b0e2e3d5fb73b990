// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageHeaders_p.h>

using namespace Qt::StringLiterals;

namespace {

struct Kind {
    ZEVImageIdentification::Format format;
    bool (*hasSignature)(QByteArrayView);
    QSize (*pixelSize)(QByteArrayView);
    const char *mimeType;
    const char *name;
    const char *extension;
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
bool hasBrand(QByteArrayView bytes, const char (&one)[5], const char (&other)[5])
{
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    if (!reader.isTag(4, "ftyp"))
        return false;
    const quint64 end = std::min<quint64>(reader.longWord(0), reader.size());
    for (quint64 brand = 8; brand + 4 <= end; brand += brand == 8 ? 8 : 4) { // a version follows the first
        if (reader.isTag(brand, one) || reader.isTag(brand, other))
            return true;
    }
    return false;
}

bool isAvif(QByteArrayView bytes) { return hasBrand(bytes, "avif", "avis"); }
bool isHeic(QByteArrayView bytes) { return hasBrand(bytes, "heic", "heix"); }

constexpr Kind Kinds[] = {
    {ZEVImageIdentification::TIFF, isTiff, ZEVImageHeaders::tiffSize, "image/tiff", "TIFF", "tiff"},
    {ZEVImageIdentification::BMP, isBmp, ZEVImageHeaders::bmpSize, "image/bmp", "BMP", "bmp"},
    {ZEVImageIdentification::GIF, isGif, ZEVImageHeaders::gifSize, "image/gif", "GIF", "gif"},
    {ZEVImageIdentification::JPEG, isJpeg, ZEVImageHeaders::jpegSize, "image/jpeg", "JPEG", "jpg"},
    {ZEVImageIdentification::PNG, isPng, ZEVImageHeaders::pngSize, "image/png", "PNG", "png"},
    {ZEVImageIdentification::WebP, isWebp, ZEVImageHeaders::webpSize, "image/webp", "WebP", "webp"},
    {ZEVImageIdentification::AVIF, isAvif, ZEVImageHeaders::avifSize, "image/avif", "AVIF", "avif"},
    {ZEVImageIdentification::HEIC, isHeic, ZEVImageHeaders::avifSize, "image/heic", "HEIC", "heic"},
};

QString text(ZEVImageIdentification::Format format, const char *Kind::*field)
{
    const auto *const kind = std::ranges::find(Kinds, format, &Kind::format);
    return kind == std::end(Kinds) ? QString() : QString::fromLatin1(kind->*field);
}

} // namespace

ZEVImageIdentification ZEVImageIdentification::identificationWithData(QByteArrayView data)
{
    for (const Kind &kind : Kinds) {
        if (kind.hasSignature(data))
            return {kind.format, kind.pixelSize(data)};
    }
    return {};
}

QString ZEVImageIdentification::mimeType() const { return text(format, &Kind::mimeType); }
QString ZEVImageIdentification::formatName() const { return text(format, &Kind::name); }
QString ZEVImageIdentification::fileExtension() const { return text(format, &Kind::extension); }

QStringList ZEVImageIdentification::mimeTypes()
{
    QStringList types;
    for (const Kind &kind : Kinds)
        types.append(QString::fromLatin1(kind.mimeType));
    return types;
}
