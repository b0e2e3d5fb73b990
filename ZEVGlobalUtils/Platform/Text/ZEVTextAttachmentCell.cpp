// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QWidget>

ZEVTextAttachmentCell::ZEVTextAttachmentCell() = default;
ZEVTextAttachmentCell::~ZEVTextAttachmentCell() = default;

QSizeF ZEVTextAttachmentCell::cellSize() const
{
    const QFontMetricsF metrics(m_font);
    return {metrics.horizontalAdvance(m_title), metrics.height()};
}

void ZEVTextAttachmentCell::drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view,
                                          qsizetype /*characterIndex*/)
{
    const QPalette palette = view ? view->palette() : QGuiApplication::palette();
    drawTitle(painter, titleRectForBounds(frame), palette.color(QPalette::Text));
}

void ZEVTextAttachmentCell::drawTitle(QPainter *painter, const QRectF &frame, const QColor &color) const
{
    // A title that fits exactly must not be shortened by what measuring it lost.
    constexpr qreal Tolerance = 0.01;
    const QString shown =
        QFontMetricsF(m_font).elidedText(m_title, Qt::ElideRight, frame.width() + Tolerance);
    painter->save();
    painter->setFont(m_font);
    painter->setPen(color);
    painter->drawText(frame, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip, shown);
    painter->restore();
}
