// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVOneLineLayout_p.h>

#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QTextCursor cursorOver(QTextDocument *document, ZEVRange range)
{
    const qsizetype length = document->characterCount() - 1;
    QTextCursor cursor(document);
    cursor.setPosition(int(qMin(range.location, length)));
    cursor.setPosition(int(qMin(range.end(), length)), QTextCursor::KeepAnchor);
    return cursor;
}

/// A line break stands in the document as a mark, whose format holds the character. Text that is typed behind
/// it takes over its format, but not the type of the object.
constexpr int LineBreakType = ZEVTextAttachments::ObjectType + 1;
constexpr int LineBreakProperty = ZEVTextAttachments::NSAttachmentAttributeName + 1;
constexpr QChar LineBreakMark(0x21B5);

/// What ends a line, or in a document a block or a frame.
bool endsLine(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator || character == QChar(0xFDD0) || character == QChar(0xFDD1);
}

QTextCharFormat formatOfLineBreak(QChar character)
{
    QTextCharFormat format;
    format.setObjectType(LineBreakType);
    format.setProperty(LineBreakProperty, character);
    return format;
}

void insertText(QTextCursor &cursor, QStringView text)
{
    while (!text.isEmpty()) {
        const auto *const end = std::ranges::find_if(text, endsLine);
        const QStringView line(text.begin(), end);
        if (!line.isEmpty())
            cursor.insertText(line.toString(), QTextCharFormat());
        if (end != text.end())
            cursor.insertText(LineBreakMark, formatOfLineBreak(*end));
        text = text.sliced(qMin(line.size() + 1, text.size()));
    }
}

/// The text of a fragment, with the line breaks that its marks stand for.
QString textOfFragment(const QTextFragment &fragment)
{
    QString text = fragment.text();
    if (fragment.charFormat().objectType() == LineBreakType)
        text.replace(LineBreakMark, fragment.charFormat().property(LineBreakProperty).toChar());
    return text;
}

/// One edit: undone in one step, and reported when it is whole.
class Edit {
public:
    explicit Edit(const QTextCursor &cursor)
        : m_cursor(cursor)
    {
        m_cursor.beginEditBlock();
    }
    ~Edit() { m_cursor.endEditBlock(); }
    Q_DISABLE_COPY_MOVE(Edit)

private:
    QTextCursor m_cursor;
};

} // namespace

OEXTokenTextStorageDelegate::~OEXTokenTextStorageDelegate() = default;
void OEXTokenTextStorageDelegate::updateTokenAttachment(OEXTokenTextStorage *, ZEVTextAttachment *, ZEVRange)
{
}

OEXTokenTextStorage::OEXTokenTextStorage(QObject *parent)
    : QTextDocument(parent)
{
    setDocumentLayout(new ZEVOneLineLayout(this));
    // Whatever way a line break came in (an input method may commit one), the field has one line, and has it
    // before anybody else looks.
    connect(this, &QTextDocument::contentsChanged, this, &OEXTokenTextStorage::joinBlocks);
}

OEXTokenTextStorage::OEXTokenTextStorage(const ZEVAttributedString &text, QObject *parent)
    : OEXTokenTextStorage(parent)
{
    replaceCharactersInRange({}, text);
    clearUndoRedoStacks();
}

ZEVAttributedString OEXTokenTextStorage::attributedSubstring(ZEVRange range) const
{
    ZEVAttributedString text;
    for (auto it = firstBlock().begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const qsizetype start = qMax<qsizetype>(range.location, fragment.position());
        const qsizetype end = qMin<qsizetype>(range.end(), fragment.position() + fragment.length());
        if (start < end)
            text.append(textOfFragment(fragment).mid(start - fragment.position(), end - start),
                        fragment.charFormat());
    }
    return text;
}

ZEVTextAttachmentPointer OEXTokenTextStorage::attachmentAtIndex(qsizetype index) const
{
    if (index < 0 || index >= length() || characterAt(int(index)) != ZEVTextAttachments::Character)
        return nullptr;
    return ZEVTextAttachments::attachmentOfFormat(attributesAtIndex(index));
}

QTextCharFormat OEXTokenTextStorage::attributesAtIndex(qsizetype index, ZEVRange *effectiveRange) const
{
    for (auto it = firstBlock().begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!fragment.contains(int(index)))
            continue;
        if (effectiveRange)
            *effectiveRange = {fragment.position(), fragment.length()};
        return fragment.charFormat();
    }
    return {};
}

void OEXTokenTextStorage::replaceCharactersInRange(ZEVRange range, const QString &string)
{
    replaceCharactersInRange(range, ZEVAttributedString(string));
}

void OEXTokenTextStorage::replaceCharactersInRange(ZEVRange range, const ZEVAttributedString &text)
{
    QTextCursor cursor = cursorOver(this, range);
    const qsizetype start = cursor.selectionStart();
    const Edit edit(cursor);
    cursor.removeSelectedText();
    insertRuns(cursor, text);
    updateAttachments({start, cursor.position() - start});
}

void OEXTokenTextStorage::setAttributes(const QTextCharFormat &attributes, ZEVRange range)
{
    QTextCursor cursor = cursorOver(this, range);
    const Edit edit(cursor);
    cursor.setCharFormat(attributes);
    if (const ZEVTextAttachmentPointer attachment = ZEVTextAttachments::attachmentOfFormat(attributes);
        attachment && m_delegate) {
        m_delegate->updateTokenAttachment(this, attachment.get(), range);
    }
}

void OEXTokenTextStorage::removeAttribute(int property, ZEVRange range)
{
    const Edit edit(cursorOver(this, range));
    for (qsizetype index = range.location; index < qMin(range.end(), length()); ++index) {
        QTextCharFormat format = attributesAtIndex(index);
        format.clearProperty(property);
        cursorOver(this, {index, 1}).setCharFormat(format);
    }
}

void OEXTokenTextStorage::insertRuns(QTextCursor &cursor, const ZEVAttributedString &text)
{
    const QString &string = text.string();
    for (const ZEVTextAttachments::Run &run : ZEVTextAttachments::runs(text)) {
        if (run.attachment)
            cursor.insertText(ZEVTextAttachments::Character,
                              ZEVTextAttachments::formatWithAttachment(run.attachment));
        else
            insertText(cursor, QStringView(string).sliced(run.range.location, run.range.length));
    }
}

QString OEXTokenTextStorage::singleLine(QString text)
{
    text.replace("\r\n"_L1, " "_L1);
    std::ranges::replace_if(text, endsLine, u' ');
    return text;
}

/// Called inside the edit, which is reported at its end.
void OEXTokenTextStorage::updateAttachments(ZEVRange range)
{
    for (const ZEVTextAttachments::Run &run : ZEVTextAttachments::runs(attributedSubstring(range))) {
        if (run.attachment && m_delegate)
            m_delegate->updateTokenAttachment(this, run.attachment.get(),
                                              {range.location + run.range.location, run.range.length});
    }
}

void OEXTokenTextStorage::joinBlocks()
{
    if (blockCount() < 2)
        return;
    QTextCursor cursor(this);
    cursor.joinPreviousEditBlock();
    while (blockCount() > 1) {
        cursor.movePosition(QTextCursor::Start);
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.deleteChar();
        cursor.insertText(u" "_s, QTextCharFormat());
    }
    cursor.endEditBlock();
}
