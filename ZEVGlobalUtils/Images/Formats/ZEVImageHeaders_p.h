// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

/// The pixel size that the header of each format gives, invalid when there is none. The bytes are foreign;
/// only their signature has been looked at.
namespace ZEVImageHeaders {

QSize tiffSize(QByteArrayView bytes);
QSize bmpSize(QByteArrayView bytes);
QSize gifSize(QByteArrayView bytes);
QSize jpegSize(QByteArrayView bytes);
QSize pngSize(QByteArrayView bytes);
QSize webpSize(QByteArrayView bytes);
QSize avifSize(QByteArrayView bytes);

/// A number out of the first directory of a TIFF; nil where it is not there.
std::optional<quint32> tiffValue(QByteArrayView bytes, quint16 tag);

/// Invalid for what is empty or does not fit.
QSize checkedSize(qint64 width, qint64 height);

} // namespace ZEVImageHeaders
