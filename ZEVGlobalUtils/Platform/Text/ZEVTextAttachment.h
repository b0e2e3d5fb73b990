// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

#include <QVariant>

#include <memory>

class ZEVTextAttachmentCell;

/// Something that stands in a text as one character, U+FFFC, and is drawn by its cell. It is held by
/// reference: two attachments are the same only when they are one object.
class ZEV_EXPORT ZEVTextAttachment {
public:
    explicit ZEVTextAttachment(const QVariant &contents = {});
    ~ZEVTextAttachment();

    /// What its maker says that it holds.
    const QVariant &contents() const { return m_contents; }

    /// What it was converted to by the field that it came into; invalid before that.
    const QVariant &representedObject() const { return m_representedObject; }
    void setRepresentedObject(const QVariant &object) { m_representedObject = object; }

    ZEVTextAttachmentCell *attachmentCell() const { return m_cell.get(); }
    void setAttachmentCell(std::unique_ptr<ZEVTextAttachmentCell> cell);

private:
    QVariant m_contents;
    QVariant m_representedObject;
    std::unique_ptr<ZEVTextAttachmentCell> m_cell;
};

using ZEVTextAttachmentPointer = std::shared_ptr<ZEVTextAttachment>;
Q_DECLARE_METATYPE(ZEVTextAttachmentPointer)

namespace ZEVTextAttachments {

/// The character of every attachment.
constexpr QChar Character = QChar::ObjectReplacementCharacter;

/// The type of an inline object whose format holds an attachment (see QAbstractTextDocumentLayout).
constexpr int ObjectType = QTextFormat::UserObject + 1;

/// The property of a character format that holds the attachment.
constexpr int NSAttachmentAttributeName = QTextFormat::UserProperty + 1;

ZEV_EXPORT QTextCharFormat formatWithAttachment(const ZEVTextAttachmentPointer &attachment);

/// Nil when the format holds none, or stands on ordinary text that was typed behind an attachment.
ZEV_EXPORT ZEVTextAttachmentPointer attachmentOfFormat(const QTextFormat &format);

/// One character with the attachment.
ZEV_EXPORT ZEVAttributedString attributedStringWithAttachment(const ZEVTextAttachmentPointer &attachment);

/// A stretch of a text: one attachment, or all text up to the next one.
struct Run {
    ZEVRange range;
    ZEVTextAttachmentPointer attachment; // nil for text
};

/// The runs of \a text in order; together they cover it.
ZEV_EXPORT QList<Run> runs(const ZEVAttributedString &text);

} // namespace ZEVTextAttachments
