// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <algorithm>
#include <cmath>

namespace {

/// Not std::round(), which takes -0.5 to -1, nor floor(x + 0.5), which the addition's own rounding spoils.
qreal roundedHalfUpwards(qreal value)
{
    const qreal below = std::floor(value);
    return value - below >= 0.5 ? below + 1 : below;
}

} // namespace

QRectF ZEVRectFromSize(QSizeF size) { return {QPointF(0, 0), size}; }

QRectF ZEVRectFromPoints(QPointF p1, QPointF p2)
{
    return {std::min(p1.x(), p2.x()), std::min(p1.y(), p2.y()), std::abs(p1.x() - p2.x()),
            std::abs(p1.y() - p2.y())};
}

QRectF ZEVExpandedRect(const QRectF &rect, qreal dx, qreal dy)
{
    return {rect.x() - dx / 2, rect.y() - dy / 2, rect.width() + dx, rect.height() + dy};
}

QRectF ZEVCenteredRectWithSizeInRect(QSizeF size, const QRectF &rect)
{
    const qreal x = rect.x() + (rect.width() - size.width()) / 2;
    const qreal y = rect.y() + (rect.height() - size.height()) / 2;
    const qreal left = roundedHalfUpwards(x);
    const qreal top = roundedHalfUpwards(y);
    return {left, top, roundedHalfUpwards(x + size.width()) - left,
            roundedHalfUpwards(y + size.height()) - top};
}
