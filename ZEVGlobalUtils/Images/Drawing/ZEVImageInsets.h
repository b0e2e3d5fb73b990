// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QImage>
#include <QPainter>

/// Draws a picture stretched in its middle while its ends or corners keep their size, as backgrounds of
/// buttons and bars want it.
///
/// Kept: the pieces are laid out from the painter's own origin; only the width and height of \a rect count.
/// An inset of more than half the length makes the middle negative, and nothing is done about that: a
/// negative piece draws nothing.
///
/// A painter's coordinates point downwards, as in a flipped view. With \a respectFlipped the picture stands
/// upright; without it every piece is drawn as if the painter's coordinates pointed upwards, and so comes out
/// upside down, the bottom row of the picture on top. Sources count from the picture's own top left, in
/// points.
namespace ZEVImageInsets {

/// Three pieces side by side, the outer ones \a capInset points wide. A null \a fromRect is the whole
/// picture, any other is cut to it. \a fraction is the opacity, 0 to 1.
ZEV_EXPORT void drawAsThreePartImageInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                                           const QRectF &fromRect, qreal capInset,
                                           QPainter::CompositionMode operation, float fraction,
                                           bool respectFlipped);

/// Nine pieces in rows of three.
ZEV_EXPORT void drawAsNinePartImageInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                                          const QRectF &fromRect, qreal horizontalInset, qreal verticalInset,
                                          QPainter::CompositionMode operation, float fraction,
                                          bool respectFlipped);

} // namespace ZEVImageInsets
