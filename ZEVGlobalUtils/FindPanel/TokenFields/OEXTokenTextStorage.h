// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorageDelegate.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QTextDocument>

/// The text of a token field: one line of characters and attachments, all positions in UTF-16 units. It asks
/// its delegate about every attachment that enters it, before the layout hears of the change. Line breaks in
/// what is put into it are shown as marks and kept; one that an editor makes becomes a space.
class ZEV_EXPORT OEXTokenTextStorage : public QTextDocument {
    Q_OBJECT

public:
    explicit OEXTokenTextStorage(QObject *parent = nullptr);
    explicit OEXTokenTextStorage(const ZEVAttributedString &text, QObject *parent = nullptr);

    OEXTokenTextStorageDelegate *delegate() const { return m_delegate; }
    /// A plain pointer, as the delegate is no QObject: it takes itself away before it goes.
    void setDelegate(OEXTokenTextStorageDelegate *delegate) { m_delegate = delegate; }

    /// With the line breaks themselves.
    QString string() const { return attributedString().string(); }
    qsizetype length() const { return characterCount() - 1; }
    ZEVAttributedString attributedString() const { return attributedSubstring({0, length()}); }
    ZEVAttributedString attributedSubstring(ZEVRange range) const;

    /// Nil where ordinary text stands, and outside the text.
    ZEVTextAttachmentPointer attachmentAtIndex(qsizetype index) const;

    /// The format at \a index, and over which stretch it is the same.
    QTextCharFormat attributesAtIndex(qsizetype index, ZEVRange *effectiveRange = nullptr) const;

    // Each is one step for undo; a range is cut at the text's end.
    void replaceCharactersInRange(ZEVRange range, const QString &string);
    void replaceCharactersInRange(ZEVRange range, const ZEVAttributedString &text);
    void setAttributes(const QTextCharFormat &attributes, ZEVRange range);
    void removeAttribute(int property, ZEVRange range);

    /// \a text with a space for every line break, CR LF counting as one.
    static QString singleLine(QString text);

private:
    void insertRuns(QTextCursor &cursor, const ZEVAttributedString &text);
    void updateAttachments(ZEVRange range);
    void joinBlocks();

    OEXTokenTextStorageDelegate *m_delegate = nullptr;
};
