// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>

#include <QGuiApplication>
#include <QHash>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal Grid = 16; // the units of the drawings below

// Each draws in the pen's and brush's colour on a square of Grid units.
using Drawing = void (*)(QPainter &painter);

void drawLens(QPainter &painter)
{
    painter.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
    painter.drawLine(QPointF(10, 10), QPointF(14, 14));
}

void drawMagnifier(QPainter &painter)
{
    painter.setBrush(Qt::NoBrush);
    drawLens(painter);
}

void drawFilledMagnifier(QPainter &painter)
{
    QColor filling = painter.brush().color();
    filling.setAlphaF(filling.alphaF() * 0.4F);
    painter.setBrush(filling);
    drawLens(painter);
}

void drawPlus(QPainter &painter)
{
    painter.drawLine(QPointF(8, 3), QPointF(8, 13));
    painter.drawLine(QPointF(3, 8), QPointF(13, 8));
}

/// A disc with a cross cut out of it.
void drawStop(QPainter &painter)
{
    QPainterPath cross;
    cross.moveTo(5, 5);
    cross.lineTo(11, 11);
    cross.moveTo(11, 5);
    cross.lineTo(5, 11);
    QPainterPathStroker stroker;
    stroker.setWidth(1.6);
    stroker.setCapStyle(Qt::RoundCap);
    QPainterPath disc;
    disc.addEllipse(QPointF(8, 8), 7, 7);
    painter.setPen(Qt::NoPen);
    painter.drawPath(disc.subtracted(stroker.createStroke(cross)));
}

void drawChevron(QPainter &painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{4, 6}, {8, 10}, {12, 6}}));
}

const QHash<QStringView, Drawing> &drawings()
{
    static const QHash<QStringView, Drawing> all = {
        {u"icoFilter", drawMagnifier},
        {u"icoFilter-ON", drawFilledMagnifier},
        {u"icoAddTemplate", drawPlus},
        {u"icoMenuTemplate", drawChevron},
        {u"NSStopProgressFreestandingTemplate", drawStop},
    };
    return all;
}

void draw(Drawing drawing, QPainter &painter, const QRectF &rect, const QColor &color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / Grid, rect.height() / Grid);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    drawing(painter);
    painter.restore();
}

/// Draws anew at every size and in the colours of the moment.
class TemplateEngine : public QIconEngine {
public:
    explicit TemplateEngine(Drawing drawing)
        : m_drawing(drawing)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        draw(m_drawing, *painter, rect, palette.color(group, role));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new TemplateEngine(*this); }

private:
    Drawing m_drawing;
};

} // namespace

QIcon ZEVNamedImages::imageNamed(QStringView name)
{
    const Drawing drawing = drawings().value(name);
    return drawing ? QIcon(new TemplateEngine(drawing)) : QIcon();
}

void ZEVNamedImages::drawImageNamed(QStringView name, QPainter *painter, const QRectF &rect,
                                    const QColor &color)
{
    if (const Drawing drawing = drawings().value(name))
        draw(drawing, *painter, rect, color);
}
