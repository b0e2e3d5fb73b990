// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/TokenTextObject_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QFontMetricsF>

/// An inline object stands on the baseline. One as tall as its font's ascent leaves the line as it is, with
/// text beside it and without; what hangs below the baseline needs no room of its own.
QSizeF TokenTextObject::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const ZEVTextAttachmentPointer attachment = ZEVTextAttachments::attachmentOfFormat(format);
    const ZEVTextAttachmentCell *cell = attachment ? attachment->attachmentCell() : nullptr;
    if (!cell)
        return {};
    return {cell->cellSize().width(), QFontMetricsF(format.toCharFormat().font()).ascent()};
}
