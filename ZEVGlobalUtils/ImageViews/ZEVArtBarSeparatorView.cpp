// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtBarSeparatorView.h>

#include <QPainter>

void ZEVArtBarSeparatorView::paintEvent(QPaintEvent *)
{
    QRect line(QPoint(), width() > height() ? QSize(width(), 1) : QSize(1, height()));
    line.moveCenter(rect().center());
    QPainter(this).fillRect(line, QColor::fromRgbF(0, 0, 0, 0.22F));
}
