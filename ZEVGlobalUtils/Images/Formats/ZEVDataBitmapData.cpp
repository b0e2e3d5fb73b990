// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

using namespace Qt::StringLiterals;

namespace {

struct Format {
    ZEVDataBitmapData::ImageFileType type;
    QStringView name;
    QStringView mimeType;
    QStringView extension;
    QStringView identifier;
};

const Format Tiff{ZEVDataBitmapData::TIFF, u"TIFF", u"image/tiff", u"tiff", ZEVUniformType::TIFF};
const Format Bmp{ZEVDataBitmapData::BMP, u"BMP", u"image/bmp", u"bmp", ZEVUniformType::BMP};
const Format Gif{ZEVDataBitmapData::GIF, u"GIF", u"image/gif", u"gif", ZEVUniformType::GIF};
const Format Jpeg{ZEVDataBitmapData::JPEG, u"JPEG", u"image/jpeg", u"jpg", ZEVUniformType::JPEG};
const Format Png{ZEVDataBitmapData::PNG, u"PNG", u"image/png", u"png", ZEVUniformType::PNG};

uint firstByte(QByteArrayView data) { return data.isEmpty() ? 0 : uchar(data.front()); }

const Format *formatOf(QByteArrayView data)
{
    switch (firstByte(data)) {
    case 0x49:
    case 0x4D:
        return &Tiff;
    case 0x42:
        return &Bmp;
    case 0x47:
        return &Gif;
    case 0xFF:
        return &Jpeg;
    case 0x89:
        return &Png;
    default:
        return nullptr;
    }
}

/// Kept: two wordings, ": 0x%x" for type and MIME type, "(0x%x)" for identifier and extension.
const Format *formatOrLog(QByteArrayView data, const char *wording)
{
    const Format *const format = formatOf(data);
    if (!format)
        qCWarning(zevLog, "%s", qPrintable(QString::asprintf(wording, firstByte(data))));
    return format;
}

std::optional<QString> text(const Format *format, QStringView Format::*field)
{
    return format ? std::optional((format->*field).toString()) : std::nullopt;
}

constexpr auto WithColon = "NSData (BitmapData) : Unknown image file type : 0x%x";
constexpr auto WithParentheses = "NSData (BitmapData) : Unknown image file type (0x%x)";

} // namespace

ZEVDataBitmapData::ImageFileType ZEVDataBitmapData::bitmapDataImageFileType(QByteArrayView data)
{
    const Format *const format = formatOrLog(data, WithColon);
    return format ? format->type : Unknown;
}

std::optional<QString> ZEVDataBitmapData::bitmapImageFileUTI(QByteArrayView data)
{
    return text(formatOrLog(data, WithParentheses), &Format::identifier);
}

QString ZEVDataBitmapData::bitmapImageType(QByteArrayView data)
{
    if (const Format *const format = formatOf(data))
        return format->name.toString();
    // The text comes from a table and is no format for printf: only its one placeholder is filled.
    return ZEVGlobalHelper::localizedStringForKey(u"Unknown Type (0x%x)")
        .replace(u"%x"_s, QString::number(firstByte(data), 16));
}

std::optional<QString> ZEVDataBitmapData::bitmapImageMimeType(QByteArrayView data)
{
    return text(formatOrLog(data, WithColon), &Format::mimeType);
}

std::optional<QString> ZEVDataBitmapData::bitmapDataImageFileExtention(QByteArrayView data)
{
    return text(formatOrLog(data, WithParentheses), &Format::extension);
}
