// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtBarView.h>

namespace {

constexpr qreal CornerRadius = 7;

} // namespace

ZEVArtBarView::ZEVArtBarView(QWidget *parent)
    : ZEVVisualEffectView(CornerRadius, parent)
{
}
