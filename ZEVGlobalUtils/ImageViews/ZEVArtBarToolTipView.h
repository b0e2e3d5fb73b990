// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVVisualEffectView.h>

/// A tool tip over artwork: it, and what is in it, is dark in every appearance.
class ZEV_EXPORT ZEVArtBarToolTipView : public ZEVVisualEffectView {
    Q_OBJECT

public:
    explicit ZEVArtBarToolTipView(QWidget *parent = nullptr);
};
