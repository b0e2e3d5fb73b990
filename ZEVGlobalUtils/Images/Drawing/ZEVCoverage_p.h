// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

#include <functional>
#include <vector>

/// How much of every pixel of a rectangle is let through, 0 to 255, nothing outside of it: what clips and
/// blurs are made of. In whole pixels of a device.
class ZEVCoverage {
public:
    explicit ZEVCoverage(const QRect &rect, quint8 value = 0);

    /// The shape of a stencil placed into \a rect: dark samples let paint through. No interpolation.
    static ZEVCoverage ofMask(const QImage &mask, const QRect &rect);

    const QRect &rect() const { return m_rect; }
    quint8 at(int x, int y) const { return m_rect.contains(x, y) ? m_values[index(x, y)] : 0; }

    ZEVCoverage inverted() const; ///< within the same rectangle
    ZEVCoverage movedTo(QPoint topLeft) const;
    ZEVCoverage clippedTo(const ZEVCoverage &clip) const;
    ZEVCoverage clippedTo(const QRect &clip) const { return clippedTo(ZEVCoverage(clip, 255)); }

    /// This rectangle with what either of them lets through.
    ZEVCoverage unitedWith(const ZEVCoverage &other) const;
    ZEVCoverage faded(qreal alpha) const;

    /// Blurred by a Gaussian, within \a bounds.
    ZEVCoverage blurred(qreal sigma, const QRect &bounds) const;

    /// Paints over \a canvas (premultiplied, its top left pixel at \a origin), a colour for every row.
    void paint(QImage &canvas, QPoint origin, const std::function<QColor(int y)> &color, qreal alpha) const;

private:
    size_t index(int x, int y) const
    {
        return size_t(y - m_rect.y()) * size_t(m_rect.width()) + size_t(x - m_rect.x());
    }

    QRect m_rect;
    std::vector<quint8> m_values;
};
