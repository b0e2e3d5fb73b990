// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVExportImageView.h>

#include <ZEVGlobalUtils/ImageViews/ZEVImageDragging_p.h>

#include <QMouseEvent>

ZEVExportImageViewDelegate::~ZEVExportImageViewDelegate() = default;

void ZEVExportImageView::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = ZEVImageDragging::pressedPoint(*event);
    event->setAccepted(m_pressedAt.has_value());
}

void ZEVExportImageView::mouseMoveEvent(QMouseEvent *event)
{
    const auto start = ZEVImageDragging::takeStart(m_pressedAt, *event);
    const auto writer = start && m_delegate ? m_delegate->pasteboardWriterForExport(this) : nullptr;
    if (writer)
        ZEVImageDragging::dragOut(this, this, drawingRectForBounds(rect()).toAlignedRect(), *start, writer);
}
