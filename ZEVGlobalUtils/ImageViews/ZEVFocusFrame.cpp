// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVFocusFrame_p.h>

#include <QPainter>

namespace {

constexpr qreal LineWidth = 2;
constexpr qreal CornerRadius = 5;

} // namespace

ZEVFocusFrame::ZEVFocusFrame(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void ZEVFocusFrame::paintEvent(QPaintEvent *)
{
    constexpr qreal Inset = LineWidth / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), LineWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), CornerRadius,
                            CornerRadius);
}
