// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>

class ZEVPasteboard;

/// Artwork as it lies on a pasteboard: encoded bytes, never decoded and encoded anew. Main thread only.
namespace ZEVPasteboardRawBitmapData {

/// The contents of the file whose address is the pasteboard's first one, and then nothing else is looked at;
/// otherwise the data of the first of these types that is there: image, PNG, TIFF, JPEG, GIF, BMP. Null when
/// there is none or the file cannot be read. A remote address is the host's to deal with.
ZEV_EXPORT QByteArray rawImageData(const ZEVPasteboard &pasteboard);

/// The data of a uniform type identifier, null when there is none.
ZEV_EXPORT QByteArray dataForUTI(const ZEVPasteboard &pasteboard, QStringView identifier);

} // namespace ZEVPasteboardRawBitmapData
