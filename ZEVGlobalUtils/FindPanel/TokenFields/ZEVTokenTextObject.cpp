// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenTextObject_p.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QFontMetricsF>

namespace {

/// Null where the attachment has none.
ZEVTextAttachmentCell *cellOfFormat(const QTextFormat &format, const OEXTokenField &field)
{
    const ZEVTextAttachmentPointer attachment = ZEVTextAttachments::attachmentOfFormat(format);
    ZEVTextAttachmentCell *cell = attachment ? attachment->attachmentCell() : nullptr;
    if (cell) {
        cell->setFont(field.cell()->font());
        cell->setControlSize(field.cell()->controlSize());
    }
    return cell;
}

} // namespace

ZEVTokenTextObject::ZEVTokenTextObject(OEXTokenField *field)
    : QObject(field)
    , m_field(field)
{
}

/// An inline object stands on the baseline. One as tall as its font's ascent leaves the line as it is, with
/// text beside it and without; what hangs below the baseline needs no room of its own.
QSizeF ZEVTokenTextObject::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const ZEVTextAttachmentCell *cell = cellOfFormat(format, *m_field);
    if (!cell)
        return {};
    return {cell->cellSize().width(), QFontMetricsF(m_field->font()).ascent()};
}

void ZEVTokenTextObject::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *, int position,
                                    const QTextFormat &format)
{
    ZEVTextAttachmentCell *cell = cellOfFormat(format, *m_field);
    if (!cell)
        return;
    const QPointF offset = cell->cellBaselineOffset();
    QRectF frame({rect.left() + offset.x(), 0}, cell->cellSize());
    frame.moveBottom(rect.bottom() - offset.y());
    cell->drawWithFrame(painter, frame, m_field, position);
}
