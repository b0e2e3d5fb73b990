// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMoreButtonCell.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QMarginsF GroundMargins(2, 4, 2, 4);
constexpr qreal CornerRadius = 3;
constexpr float Alpha = 0.085F;
constexpr float HighlightedAlpha = 0.15F;

} // namespace

ZEVMoreButtonCell::ZEVMoreButtonCell(QWidget *parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

void ZEVMoreButtonCell::drawWithFrame(QPainter *painter, const QRectF &frame, bool highlighted) const
{
    QColor color = ZEVNamedColors::colorNamed(u"reversingBlackColor", palette());
    color.setAlphaF(highlighted ? HighlightedAlpha : Alpha);
    QPainterPath ground;
    ground.addRoundedRect(frame.marginsRemoved(GroundMargins), CornerRadius, CornerRadius);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(ground, color);
    painter->setClipPath(ground);
    // As large as the frame lets it be in its own shape.
    QRectF image(0, 0, qMin(frame.width(), frame.height()), qMin(frame.width(), frame.height()));
    image.moveCenter(frame.center());
    icon().paint(painter, image.toRect());
}

void ZEVMoreButtonCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawWithFrame(&painter, rect(), isDown());
}
