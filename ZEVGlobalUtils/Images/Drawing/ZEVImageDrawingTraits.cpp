// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVImageDrawingTraits.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVCoverage_p.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVDrawingTrait.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <cmath>

namespace {

/// The pixels of a device behind the coordinates of a painter: its own where the axes are straight, else as
/// many along the turned axes.
class PixelGrid {
public:
    explicit PixelGrid(const QTransform &transform)
    {
        const bool isStraight =
            transform.type() <= QTransform::TxScale && transform.m11() > 0 && transform.m22() > 0;
        if (isStraight)
            m_origin = {transform.dx(), transform.dy()};
        m_across = std::hypot(transform.m11(), transform.m12());
        m_down = std::hypot(transform.m21(), transform.m22());
    }

    /// Every edge on the nearest pixel; empty for what is too far off or too large to be meant.
    QRect pixels(const QRectF &rect) const
    {
        constexpr qreal Farthest = 1 << 20, MostPixels = 1 << 24;
        const QPointF from = pixel(rect.topLeft()), to = pixel(rect.bottomRight());
        const bool isNear =
            std::max({std::abs(from.x()), std::abs(from.y()), std::abs(to.x()), std::abs(to.y())}) < Farthest;
        if (!isNear || !(to.x() > from.x() && to.y() > from.y()))
            return {};
        const QRect found(from.toPoint(), to.toPoint() - QPoint(1, 1));
        return qreal(found.width()) * found.height() <= MostPixels ? found : QRect();
    }

    QRectF points(const QRect &rect) const
    {
        return {(rect.x() - m_origin.x()) / m_across, (rect.y() - m_origin.y()) / m_down,
                rect.width() / m_across, rect.height() / m_down};
    }

    qreal scale() const { return std::sqrt(m_across * m_down); }

private:
    QPointF pixel(QPointF point) const
    {
        return {point.x() * m_across + m_origin.x(), point.y() * m_down + m_origin.y()};
    }

    QPointF m_origin;
    qreal m_across;
    qreal m_down;
};

QColor orBlack(const QColor &color) { return color.isValid() ? color : QColor(Qt::black); }

float mixed(float from, float to, float part) { return from + (to - from) * part; }

/// Extended before its first and after its last colour.
QColor gradientColor(const QGradientStops &stops, qreal place)
{
    const auto after =
        std::ranges::find_if(stops, [place](const QGradientStop &stop) { return stop.first > place; });
    if (after == stops.cbegin() || after == stops.cend())
        return after == stops.cbegin() ? stops.first().second : stops.last().second;
    const auto before = std::prev(after);
    const float part = float((place - before->first) / (after->first - before->first));
    const QColor &from = before->second, &to = after->second;
    return QColor::fromRgbF(mixed(from.redF(), to.redF(), part), mixed(from.greenF(), to.greenF(), part),
                            mixed(from.blueF(), to.blueF(), part), mixed(from.alphaF(), to.alphaF(), part));
}

/// One drawing: the layers of a trait, painted one over the other.
class StencilDrawing {
public:
    StencilDrawing(const ZEVDrawingTrait &trait, const PixelGrid &grid, const QRectF &rect,
                   const ZEVCoverage &shape, bool upright)
        : m_trait(trait)
        , m_grid(grid)
        , m_rect(rect)
        , m_shape(shape)
        , m_upright(upright)
    {
    }

    QRect shadowRect() const { return m_grid.pixels(moved(m_trait.dropShadowOffset)); }
    QImage dropShadow(qreal fraction) const;
    QImage shape(qreal fraction) const;

private:
    QRectF moved(QSizeF offset) const { return m_rect.translated(offset.width(), offset.height()); }
    QColor bodyColor(int y) const;
    ZEVCoverage innerGlow() const;
    ZEVCoverage innerShadow() const;

    const ZEVDrawingTrait &m_trait;
    const PixelGrid &m_grid;
    QRectF m_rect;
    const ZEVCoverage &m_shape;
    bool m_upright;
};

QImage emptyCanvas(const QRect &rect)
{
    QImage canvas(rect.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    return canvas;
}

auto constant(const QColor &color)
{
    return [color](int) { return color; };
}

/// A hard copy of the shape. Clipped to what is outside the shape, it is clipped to the shape's rectangle,
/// too.
QImage StencilDrawing::dropShadow(qreal fraction) const
{
    const QRect rect = shadowRect();
    const ZEVCoverage moved = m_shape.movedTo(rect.topLeft());
    const ZEVCoverage shadow = m_trait.clipsShadow ? moved.clippedTo(m_shape.inverted()) : moved;
    QImage canvas = emptyCanvas(rect);
    shadow.paint(canvas, rect.topLeft(), constant(orBlack(m_trait.dropShadowColor)), fraction);
    return canvas;
}

QImage StencilDrawing::shape(qreal fraction) const
{
    const QRect &rect = m_shape.rect();
    QImage canvas = emptyCanvas(rect);
    m_shape.paint(
        canvas, rect.topLeft(), [this](int y) { return bodyColor(y); }, fraction);
    if (m_trait.innerGlowRadius > 0) {
        QColor opaque = orBlack(m_trait.innerGlowColor);
        opaque.setAlpha(255);
        innerGlow().paint(canvas, rect.topLeft(), constant(opaque), fraction);
    }
    if (!m_trait.innerShadowOffset.isNull())
        innerShadow().paint(canvas, rect.topLeft(), constant(orBlack(m_trait.innerShadowColor)), fraction);
    return canvas;
}

QColor StencilDrawing::bodyColor(int y) const
{
    if (!m_trait.needsGradient())
        return orBlack(m_trait.color);
    const qreal fromTop = (y - m_shape.rect().top() + 0.5) / m_shape.rect().height();
    return gradientColor(m_trait.gradient(), m_upright ? fromTop : 1 - fromTop);
}

/// What lies outside of the shape is painted, casts a blurred shadow and is erased; the shadow falls inside.
/// A blur of radius r is a Gaussian of sigma r / 2.
ZEVCoverage StencilDrawing::innerGlow() const
{
    // Kept: the fill does not follow the change of sign that turns the drawing.
    const QRectF fill = m_upright ? QRectF(m_rect.x(), -m_rect.y(), m_rect.width(), m_rect.height()) : m_rect;
    const ZEVCoverage outside = m_shape.inverted().clippedTo(m_grid.pixels(fill));
    const qreal sigma = m_trait.innerGlowRadius * m_grid.scale() / 2;
    const ZEVCoverage shadow =
        outside.blurred(sigma, m_shape.rect()).faded(orBlack(m_trait.innerGlowColor).alphaF());
    return shadow.unitedWith(outside).clippedTo(m_shape);
}

/// A hard band along the edges that the offset points away from.
ZEVCoverage StencilDrawing::innerShadow() const
{
    const QRect rect = m_grid.pixels(moved(m_trait.innerShadowOffset));
    if (rect.isEmpty())
        return ZEVCoverage(QRect());
    return m_shape.inverted().movedTo(rect.topLeft()).clippedTo(m_shape);
}

/// The pixels that become samples: as they are, or scaled to the device's.
QImage pixelImage(const QImage &image, QSize size, QPainter::RenderHints hints, bool upright)
{
    const bool scales = hints.testFlag(QPainter::SmoothPixmapTransform) && image.size() != size;
    const QImage scaled =
        scales ? image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : image;
    return upright ? scaled : scaled.mirrored();
}

} // namespace

QImage ZEVImageDrawingTraits::stencilMask(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage mask(image.size(), QImage::Format_Alpha8);
    for (int y = 0; y < mask.height(); ++y) {
        const auto *const from = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        uchar *const to = mask.scanLine(y);
        for (int x = 0; x < mask.width(); ++x) {
            const int paint = 299 * qRed(from[x]) + 587 * qGreen(from[x]) + 114 * qBlue(from[x]);
            to[x] = uchar((paint + 500) / 1000 + 255 - qAlpha(from[x])); // over white
        }
    }
    return mask;
}

QImage ZEVImageDrawingTraits::CGImageCreateInvertedMaskWithMask(const std::optional<QImage> &mask)
{
    if (!mask)
        return {};
    if (mask->format() != QImage::Format_Alpha8)
        qCWarning(zevLog) << "Attempting to invert non-mask:" << *mask;
    if (mask->isNull()) {
        qCWarning(zevLog) << "Image to be inverted contains no data";
        return {};
    }
    QImage samples = *mask;
    if (samples.format() != QImage::Format_Alpha8)
        return samples.convertToFormat(QImage::Format_Grayscale8);
    samples.reinterpretAsFormat(QImage::Format_Grayscale8);
    return samples;
}

void ZEVImageDrawingTraits::drawInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                                       const QRectF &, const ZEVDrawingTrait &trait,
                                       QPainter::CompositionMode, qreal fraction, bool respectFlipped,
                                       QPainter::RenderHints hints)
{
    const PixelGrid grid(painter.deviceTransform());
    const QRect pixels = grid.pixels(rect);
    if (image.isNull() || pixels.isEmpty())
        return;
    const QImage mask = stencilMask(pixelImage(image, pixels.size(), hints, respectFlipped));
    const ZEVCoverage shape = ZEVCoverage::ofMask(mask, pixels);
    const StencilDrawing drawing(trait, grid, rect, shape, respectFlipped);
    painter.save();
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (painter.deviceTransform().type() > QTransform::TxScale)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform); // turned: no steps
    if (!trait.dropShadowOffset.isNull() && !drawing.shadowRect().isEmpty())
        painter.drawImage(grid.points(drawing.shadowRect()), drawing.dropShadow(fraction));
    painter.drawImage(grid.points(pixels), drawing.shape(fraction));
    painter.restore();
}
