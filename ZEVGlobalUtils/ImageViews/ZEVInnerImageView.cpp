// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>

#include <QContextMenuEvent>
#include <QPainter>

ZEVInnerImageView::ZEVInnerImageView(QWidget *parent)
    : ZEVImageView(parent)
{
    // Some styles move the window by whatever takes no click itself; this is how they are told not to.
    setProperty("_kde_no_window_grab", true);
}

void ZEVInnerImageView::setOpacity(qreal opacity)
{
    m_opacity = opacity;
    update();
}

void ZEVInnerImageView::setScale(qreal scale)
{
    m_scale = scale;
    update();
}

void ZEVInnerImageView::setMenu(QMenu *menu) { m_menu = menu; }

void ZEVInnerImageView::paintEvent(QPaintEvent *)
{
    const QPointF middle = QRectF(rect()).center();
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    painter.translate(middle);
    painter.scale(m_scale, m_scale);
    painter.translate(-middle);
    drawImage(painter);
}

void ZEVInnerImageView::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_menu)
        m_menu->popup(event->globalPos());
    event->setAccepted(m_menu);
}
