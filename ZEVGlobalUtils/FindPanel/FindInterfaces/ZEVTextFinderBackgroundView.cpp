// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBackgroundView.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QEvent>
#include <QPainter>

ZEVTextFinderBackgroundView::ZEVTextFinderBackgroundView(QWidget *parent)
    : QWidget(parent)
{
    udpateBackgroundColor();
    pinToSuperview();
}

bool ZEVTextFinderBackgroundView::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && parentWidget())
        parentWidget()->removeEventFilter(this);
    else if (event->type() == QEvent::ParentChange)
        pinToSuperview();
    else if (event->type() == QEvent::PaletteChange)
        udpateBackgroundColor();
    return QWidget::event(event);
}

bool ZEVTextFinderBackgroundView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(0, y(), parentWidget()->width(), height());
    return QWidget::eventFilter(watched, event);
}

void ZEVTextFinderBackgroundView::pinToSuperview()
{
    if (!parentWidget())
        return;
    parentWidget()->installEventFilter(this);
    setGeometry(0, y(), parentWidget()->width(), height());
}

void ZEVTextFinderBackgroundView::udpateBackgroundColor()
{
    m_backgroundColor = ZEVAppearanceHelpers::isDark(palette()) ? QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.3F)
                                                                : QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.5F);
    update();
}

void ZEVTextFinderBackgroundView::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), m_backgroundColor);
}
