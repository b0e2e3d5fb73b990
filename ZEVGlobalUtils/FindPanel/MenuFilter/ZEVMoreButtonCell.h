// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QToolButton>

/// The button below a menu's filter that brings back what it hides. Its image fills it.
class ZEV_EXPORT ZEVMoreButtonCell : public QToolButton {
    Q_OBJECT

public:
    explicit ZEVMoreButtonCell(QWidget *parent = nullptr);

    /// A rounded ground, darker while \a highlighted, and on it the image, in the colour of texts.
    void drawWithFrame(QPainter *painter, const QRectF &frame, bool highlighted) const;

protected:
    void paintEvent(QPaintEvent *event) override;
};
