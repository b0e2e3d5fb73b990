// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

class QPalette;

/// Draws a token as a pill.
class ZEV_EXPORT ZEVTokenAttachmentCell : public ZEVTextAttachmentCell {
public:
    /// 0 normal, 1 highlighted in the active window, 2 selected in the active window.
    qint64 drawingMode() const { return m_drawingMode; }
    void setDrawingMode(qint64 mode) { m_drawingMode = mode; }

    virtual qreal cornerRadius() const { return 3.0; }
    QPointF cellBaselineOffset() const override { return {0.0, -3.0}; }
    QSizeF cellSize() const override;

    /// The pill, which ends where \a bounds end and is as tall as a capital letter and 6 points.
    QRectF tokenRectForBounds(const QRectF &bounds) const;

    void drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view,
                       qsizetype characterIndex) override;
    /// The pill alone.
    void drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view) const;
    /// The title alone.
    void drawInteriorWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view) const;

    virtual QColor tokenFillColorForDrawingMode(qint64 mode, const QPalette &palette) const;
    virtual QColor tokenTitleColorForDrawingMode(qint64 mode, const QPalette &palette) const;

protected:
    /// How far the pill stands back from the sides of its cell, and the title from the sides of the pill.
    virtual qreal inset() const;
    virtual qreal spacing() const;

private:
    qint64 drawingModeAtIndex(const QWidget *view, qsizetype characterIndex) const;

    qint64 m_drawingMode = 0;
};
