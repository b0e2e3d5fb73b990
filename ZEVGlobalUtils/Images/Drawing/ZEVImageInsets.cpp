// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVImageInsets.h>

#include <ZEVGlobalUtils/Images/Drawing/ZEVSmoothDrawing_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <array>
#include <vector>

namespace {

struct Stretch {
    qreal from;
    qreal length;
};

/// The two ends and, between them, the middle of a length.
std::array<Stretch, 3> parts(qreal from, qreal length, qreal inset)
{
    return {{{from, inset}, {from + inset, length - 2 * inset}, {from + length - inset, inset}}};
}

QRectF piece(Stretch across, Stretch down) { return {across.from, down.from, across.length, down.length}; }

/// Every edge on the nearest whole point.
QRectF aligned(const QRectF &rect) { return ZEVCenteredRectWithSizeInRect(rect.size(), rect); }

QRectF usedPart(const QImage &image, const QRectF &fromRect)
{
    const QRectF whole = ZEVRectFromSize(image.deviceIndependentSize());
    return fromRect.isNull() && fromRect.topLeft().isNull() ? whole : fromRect & whole;
}

/// The picture as it is to be seen, with the part of it.
struct Source {
    Source(const QImage &given, const QRectF &fromRect, bool upright)
        : image(upright ? given : given.mirrored())
        , part(usedPart(given, fromRect))
    {
        if (!upright)
            part.moveTop(given.deviceIndependentSize().height() - part.bottom());
    }

    QImage image;
    QRectF part;
};

void drawPiece(QPainter &painter, const QRectF &target, const QImage &image, const QRectF &source)
{
    const qreal ratio = image.devicePixelRatio();
    const QRectF pixels(source.topLeft() * ratio, source.size() * ratio);
    if (!target.isEmpty() && !pixels.isEmpty())
        ZEVSmoothDrawing::drawImage(painter, target, image, pixels);
}

using Rows = std::vector<Stretch>;

/// Only the outer corners, or ends, stand where they are without being moved to whole points.
void drawRows(QPainter &painter, const Source &source, qreal width, qreal inset, const Rows &targetRows,
              const Rows &sourceRows)
{
    const auto to = parts(0, width, inset);
    const auto from = parts(source.part.x(), source.part.width(), inset);
    for (size_t row = 0; row < targetRows.size(); ++row) {
        for (size_t column = 0; column < to.size(); ++column) {
            const QRectF target = piece(to.at(column), targetRows.at(row));
            const bool isMiddle = column == 1 || (row == 1 && targetRows.size() > 1);
            drawPiece(painter, isMiddle ? aligned(target) : target, source.image,
                      piece(from.at(column), sourceRows.at(row)));
        }
    }
}

Rows threeRows(qreal from, qreal length, qreal inset)
{
    const auto rows = parts(from, length, inset);
    return {rows.begin(), rows.end()};
}

/// The painter with an operation and an opacity on top of its own.
class Composition {
public:
    Composition(QPainter &painter, QPainter::CompositionMode operation, float fraction)
        : m_painter(painter)
    {
        painter.save();
        painter.setCompositionMode(operation);
        painter.setOpacity(painter.opacity() * double(fraction));
    }

    ~Composition() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(Composition)

private:
    QPainter &m_painter;
};

} // namespace

void ZEVImageInsets::drawAsThreePartImageInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                                                const QRectF &fromRect, qreal capInset,
                                                QPainter::CompositionMode operation, float fraction,
                                                bool respectFlipped)
{
    const Composition composition(painter, operation, fraction);
    const Source source(image, fromRect, respectFlipped);
    drawRows(painter, source, rect.width(), capInset, {{0, rect.height()}},
             {{source.part.y(), source.part.height()}});
}

void ZEVImageInsets::drawAsNinePartImageInRect(const QImage &image, QPainter &painter, const QRectF &rect,
                                               const QRectF &fromRect, qreal horizontalInset,
                                               qreal verticalInset, QPainter::CompositionMode operation,
                                               float fraction, bool respectFlipped)
{
    const Composition composition(painter, operation, fraction);
    const Source source(image, fromRect, respectFlipped);
    drawRows(painter, source, rect.width(), horizontalInset, threeRows(0, rect.height(), verticalInset),
             threeRows(source.part.y(), source.part.height(), verticalInset));
}
