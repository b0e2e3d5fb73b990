// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <QImage>

/// How a picture is to be turned so that it stands upright, by the tag 274 of TIFF 6.0 and of Exif, which other
/// formats carry as a TIFF of its own. Decoders apply it for some formats and not for others.
namespace ZEVImageOrientation {

/// From 1, upright as it is stored, to 8; 1 also where there is none or it is none of these.
int orientation(const ZEVImageIdentification &identification, QByteArrayView bytes);

/// Whether width and height change places.
inline bool isTransposed(int orientation) { return orientation >= 5; }

QImage upright(const QImage &stored, int orientation);

} // namespace ZEVImageOrientation
