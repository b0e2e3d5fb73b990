// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QGraphicsEffect>

/// Draws a widget and all that is in it as one: translucent, and with a shadow.
class ZEVViewEffect : public QGraphicsEffect {
    Q_OBJECT

public:
    using QGraphicsEffect::QGraphicsEffect;

    qreal alpha() const { return m_alpha; }
    void setAlpha(qreal alpha);

    /// An invalid colour for no shadow; offset in points.
    void setShadow(const QColor &color, QPointF offset);
    const QColor &shadowColor() const { return m_shadowColor; }

    QRectF boundingRectFor(const QRectF &rect) const override;

protected:
    void draw(QPainter *painter) override;

private:
    qreal m_alpha = 1;
    QColor m_shadowColor;
    QPointF m_shadowOffset;
};
