// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Tells what a piece of artwork is by its first byte, the only one that is looked at: "Banana" is a BMP. An
/// empty buffer is unknown, as its byte 0x00 would be. For what the bytes really hold, ask
/// ZEVImageIdentification. Any thread.
namespace ZEVDataBitmapData {

enum ImageFileType { Unknown = -1, TIFF = 0, BMP = 1, GIF = 2, JPEG = 3, PNG = 4 };

ZEV_EXPORT ImageFileType bitmapDataImageFileType(QByteArrayView data);

/// The uniform type identifier, "public.png" and the like; nil when unknown.
ZEV_EXPORT std::optional<QString> bitmapImageFileUTI(QByteArrayView data);

/// The name to show: "PNG", or a localized text that names the unknown byte.
ZEV_EXPORT QString bitmapImageType(QByteArrayView data);

/// Nil when unknown.
ZEV_EXPORT std::optional<QString> bitmapImageMimeType(QByteArrayView data);

/// Without its dot; nil when unknown. Kept: the spelling of the name, and "jpg" beside "tiff".
ZEV_EXPORT std::optional<QString> bitmapDataImageFileExtention(QByteArrayView data);

} // namespace ZEVDataBitmapData
