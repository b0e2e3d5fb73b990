// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QWidget>

/// A hairline between the parts of an art bar: black, for the most part transparent.
class ZEV_EXPORT ZEVArtBarSeparatorView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// As long as the bar gives it room, and a point wide in the middle of what there is across.
    QSize sizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};
