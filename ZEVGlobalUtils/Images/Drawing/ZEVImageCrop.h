// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QImage>
#include <QPainter>

/// Fits a picture into a rectangle of another shape. Sizes are in points, rectangles in the painter's
/// coordinates. Large pictures are shrunk by averaging areas, so that fine patterns do not flicker.
namespace ZEVImageCrop {

/// What is seen of a picture that is too wide or too tall. Any number above Fit fills the rectangle with the
/// left and bottom part.
enum FitMethod : int {
    FillCentre = 0, ///< the middle
    FillLeftTop = 1, ///< the left part of a wide picture, the top of a tall one
    FillRightBottom = 2, ///< the right part, the bottom
    Fit = 3, ///< the whole picture, in the middle of the rectangle
};

/// \a fraction is the opacity, 0 to 1, on top of the painter's own. Nothing is drawn of or into nothing.
ZEV_EXPORT void drawInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                           QPainter::CompositionMode operation, float fraction, FitMethod method);

/// A new picture of exactly \a size points, with \a devicePixelRatio pixels a point; what the picture leaves
/// free is transparent. Null for an empty size or one that does not fit into memory.
ZEV_EXPORT QImage imageToFitSize(const QImage &image, QSizeF size, FitMethod method,
                                 qreal devicePixelRatio = 1);
ZEV_EXPORT QImage imageCroppedToFitSize(const QImage &image, QSizeF size, qreal devicePixelRatio = 1);
ZEV_EXPORT QImage imageScaledToFitSize(const QImage &image, QSizeF size, qreal devicePixelRatio = 1);

} // namespace ZEVImageCrop
