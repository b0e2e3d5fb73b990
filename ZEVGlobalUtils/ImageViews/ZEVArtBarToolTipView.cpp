// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtBarToolTipView.h>

#include <QPalette>

namespace {

constexpr qreal CornerRadius = 9;

/// All roles are made out of these two, so none is left to the application's palette.
QPalette darkPalette()
{
    const QColor ground(42, 42, 44);
    QPalette palette(ground, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText})
        palette.setColor(role, Qt::white);
    return palette;
}

} // namespace

ZEVArtBarToolTipView::ZEVArtBarToolTipView(QWidget *parent)
    : ZEVVisualEffectView(CornerRadius, parent)
{
    setPalette(darkPalette());
}
