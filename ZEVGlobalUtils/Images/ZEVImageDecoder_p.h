// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/// The one place where foreign bytes become pixels.
namespace ZEVImageDecoder {

/// The first frame as it is stored, with one point a pixel. Null for bytes that are none of the known
/// formats, are cut short, or would take more memory than any artwork needs. Any thread.
QImage imageWithData(const QByteArray &data);

} // namespace ZEVImageDecoder
