// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVVisualEffectView.h>

/// A bar of buttons over artwork.
class ZEV_EXPORT ZEVArtBarView : public ZEVVisualEffectView {
    Q_OBJECT

public:
    explicit ZEVArtBarView(QWidget *parent = nullptr);
};
