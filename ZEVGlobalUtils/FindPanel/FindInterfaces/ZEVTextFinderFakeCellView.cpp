// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakeCellView.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QEvent>
#include <QPainter>

namespace {

constexpr qreal CornerRadius = 5.0;
constexpr qreal BorderWidth = 0.6;

QColor white(float level, float alpha) { return QColor::fromRgbF(level, level, level, alpha); }

} // namespace

ZEVTextFinderFakeCellView::ZEVTextFinderFakeCellView(QWidget *parent)
    : QWidget(parent)
{
    setFocused(false);
}

void ZEVTextFinderFakeCellView::setFocused(bool focused)
{
    m_focused = focused;
    udpateBorder();
    udpateBackgroundColor();
}

void ZEVTextFinderFakeCellView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setFocused(m_focused);
}

void ZEVTextFinderFakeCellView::udpateBorder()
{
    if (ZEVAppearanceHelpers::isDark(palette()))
        m_borderColor = white(1.0F, m_focused ? 0.25F : 0.1F);
    else
        m_borderColor = white(0.0F, m_focused ? 0.25F : 0.17F);
    update();
}

void ZEVTextFinderFakeCellView::udpateBackgroundColor()
{
    if (ZEVAppearanceHelpers::isDark(palette()))
        m_backgroundColor = m_focused ? white(0.118F, 1.0F) : white(1.0F, 0.15F);
    else
        m_backgroundColor = m_focused ? QColor(Qt::white) : white(0.0F, 0.05F);
    update();
}

void ZEVTextFinderFakeCellView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_borderColor, BorderWidth));
    painter.setBrush(m_backgroundColor);
    const qreal half = BorderWidth / 2; // a border lies inside its view
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), CornerRadius - half,
                            CornerRadius - half);
}
