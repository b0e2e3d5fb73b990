// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

class QPainter;

namespace ZEVSmoothDrawing {

/// Draws the \a source area of \a image, in pixels, into \a target, in high quality: bilinear when it grows,
/// the average of areas when it shrinks.
void drawImage(QPainter &painter, const QRectF &target, const QImage &image, const QRectF &source);

} // namespace ZEVSmoothDrawing
