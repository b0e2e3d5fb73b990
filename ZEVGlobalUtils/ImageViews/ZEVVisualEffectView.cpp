// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVVisualEffectView.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <QPainter>

ZEVVisualEffectView::ZEVVisualEffectView(qreal cornerRadius, QWidget *parent)
    : QWidget(parent)
    , m_cornerRadius(cornerRadius)
{
}

void ZEVVisualEffectView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ZEVNamedColors::colorNamed(u"artBarColor", palette()));
    painter.drawRoundedRect(rect(), m_cornerRadius, m_cornerRadius);
}
