// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakePopUpCellView.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QEvent>
#include <QPainter>

namespace {

constexpr qreal CornerRadius = 5.0;
constexpr qreal BorderWidth = 1.0;
constexpr float BorderAlpha = 0.05F;

} // namespace

ZEVTextFinderFakePopUpCellView::ZEVTextFinderFakePopUpCellView(QWidget *parent)
    : QWidget(parent)
{
    udpateBorder();
}

void ZEVTextFinderFakePopUpCellView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        udpateBorder();
}

void ZEVTextFinderFakePopUpCellView::udpateBorder()
{
    m_borderColor = ZEVAppearanceHelpers::isDark(palette()) ? Qt::white : Qt::black;
    m_borderColor.setAlphaF(BorderAlpha);
    update();
}

void ZEVTextFinderFakePopUpCellView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_borderColor, BorderWidth));
    const qreal half = BorderWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), CornerRadius, CornerRadius);
}
