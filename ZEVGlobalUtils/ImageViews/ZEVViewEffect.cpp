// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVViewEffect_p.h>

#include <QPainter>
#include <QPixmap>

namespace {

QPixmap inColor(QPixmap shape, const QColor &color)
{
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF({}, shape.deviceIndependentSize()), color);
    return shape;
}

} // namespace

void ZEVViewEffect::setAlpha(qreal alpha)
{
    m_alpha = alpha;
    update();
}

void ZEVViewEffect::setShadow(const QColor &color, QPointF offset)
{
    m_shadowColor = color;
    m_shadowOffset = offset;
    updateBoundingRect();
    update();
}

QRectF ZEVViewEffect::boundingRectFor(const QRectF &rect) const
{
    return m_shadowColor.isValid() ? rect.united(rect.translated(m_shadowOffset)) : rect;
}

void ZEVViewEffect::draw(QPainter *painter)
{
    QPoint place;
    const QPixmap picture = sourcePixmap(Qt::LogicalCoordinates, &place, NoPad);
    painter->save();
    painter->setOpacity(painter->opacity() * m_alpha);
    if (m_shadowColor.isValid())
        painter->drawPixmap(QPointF(place) + m_shadowOffset, inColor(picture, m_shadowColor));
    painter->drawPixmap(place, picture);
    painter->restore();
}
