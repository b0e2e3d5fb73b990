// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QRectF>

/// A rectangle of \a size at (0, 0). All these functions count in points.
ZEV_EXPORT QRectF ZEVRectFromSize(QSizeF size);

/// The rectangle between two opposite corners, in whatever order they come.
ZEV_EXPORT QRectF ZEVRectFromPoints(QPointF p1, QPointF p2);

/// \a rect grown by \a dx and \a dy in all, about its centre; negative values shrink it.
ZEV_EXPORT QRectF ZEVExpandedRect(const QRectF &rect, qreal dx, qreal dy);

/// \a size in the centre of \a rect, every edge on the nearest whole point, a half one upwards (towards the
/// larger number). A size that is larger than \a rect hangs over evenly.
ZEV_EXPORT QRectF ZEVCenteredRectWithSizeInRect(QSizeF size, const QRectF &rect);
