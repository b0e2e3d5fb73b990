// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtBarSeparatorView.h>

#include <QPainter>

void ZEVArtBarSeparatorView::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor::fromRgbF(0, 0, 0, 0.22F));
}
