// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QImage>
#include <QPainter>

#include <optional>

class ZEVDrawingTrait;

/// Draws small images as stencils: their dark pixels mark where the trait's paint goes. A sample of a stencil
/// is the luminance of a pixel over white (ITU-R BT.601), 0 for full paint and 255 for none.
///
/// The steps are described in coordinates that point upwards; a painter's point downwards, as in a flipped
/// view. With \a respectFlipped the shape stands upright, its gradient starts at its top. Without it, shape
/// and gradient come out upside down. Offsets point down the screen in both cases.
namespace ZEVImageDrawingTraits {

/// Paints all of \a image into \a rect of \a painter, at the opacity \a fraction (0 to 1), which takes the
/// place of the painter's own. Kept: \a fromRect and \a operation are ignored.
/// QPainter::SmoothPixmapTransform in \a hints makes a stencil of another size than the device's be scaled
/// smoothly, otherwise its pixels are repeated or left out. Effects are clipped to \a rect but for the drop
/// shadow. Kept: with \a respectFlipped the glow is made from \a rect with its y changed in sign, so it is
/// whole only where that is 0: translate the painter instead.
ZEV_EXPORT void drawInRect(const QImage &image, QPainter &painter, const QRectF &rect, const QRectF &fromRect,
                           const ZEVDrawingTrait &trait, QPainter::CompositionMode operation, qreal fraction,
                           bool respectFlipped, QPainter::RenderHints hints = {});

/// The samples of a stencil mask (an image of Format_Alpha8) as an ordinary grey image of Format_Grayscale8:
/// used as a clip, which lets paint through where it is light, the same bytes clip to the outside of the
/// shape. What is no mask is logged, and its grey rendering taken. Null for nil and for an image without
/// pixels.
ZEV_EXPORT QImage CGImageCreateInvertedMaskWithMask(const std::optional<QImage> &mask);

/// The stencil mask of \a image, of its own size and in Format_Alpha8.
ZEV_EXPORT QImage stencilMask(const QImage &image);

} // namespace ZEVImageDrawingTraits
