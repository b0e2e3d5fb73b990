// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

ZEVTextAttachment::ZEVTextAttachment(const QVariant &contents)
    : m_contents(contents)
{
}

ZEVTextAttachment::~ZEVTextAttachment() = default;

void ZEVTextAttachment::setAttachmentCell(std::unique_ptr<ZEVTextAttachmentCell> cell)
{
    m_cell = std::move(cell);
    if (m_cell)
        m_cell->setAttachment(this);
}

QTextCharFormat ZEVTextAttachments::formatWithAttachment(const ZEVTextAttachmentPointer &attachment)
{
    QTextCharFormat format;
    format.setObjectType(ObjectType);
    format.setProperty(NSAttachmentAttributeName, QVariant::fromValue(attachment));
    return format;
}

ZEVTextAttachmentPointer ZEVTextAttachments::attachmentOfFormat(const QTextFormat &format)
{
    // Text that is typed behind an attachment takes over its format, but not the type of the object.
    if (format.objectType() != ObjectType)
        return nullptr;
    return format.property(NSAttachmentAttributeName).value<ZEVTextAttachmentPointer>();
}

ZEVAttributedString
ZEVTextAttachments::attributedStringWithAttachment(const ZEVTextAttachmentPointer &attachment)
{
    ZEVAttributedString text;
    text.append(Character, formatWithAttachment(attachment));
    return text;
}

QList<ZEVTextAttachments::Run> ZEVTextAttachments::runs(const ZEVAttributedString &text)
{
    QList<Run> runs;
    qsizetype end = 0;
    const auto appendTextUpTo = [&](qsizetype location) {
        if (location > end)
            runs.append({{end, location - end}, nullptr});
    };
    for (const QTextLayout::FormatRange &stretch : text.formats()) {
        const ZEVTextAttachmentPointer attachment = attachmentOfFormat(stretch.format);
        if (!attachment || stretch.start < end || text.string().at(stretch.start) != Character)
            continue;
        appendTextUpTo(stretch.start);
        runs.append({{stretch.start, 1}, attachment});
        end = stretch.start + 1;
    }
    appendTextUpTo(text.length());
    return runs;
}
