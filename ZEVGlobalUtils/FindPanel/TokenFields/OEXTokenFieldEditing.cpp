// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVOneLineLayout_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenMimeData_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace {

std::optional<ZEVTextCommand> commandOfKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return event.modifiers() & Qt::ShiftModifier ? ZEVTextCommand::InsertNewlineBackward
                                                     : ZEVTextCommand::InsertNewline;
    case Qt::Key_Escape:
        return ZEVTextCommand::CancelOperation;
    case Qt::Key_Down:
        return event.modifiers() & ~Qt::KeypadModifier ? std::nullopt
                                                       : std::optional(ZEVTextCommand::MoveDown);
    default:
        return std::nullopt;
    }
}

/// What moves between lines or pages has no meaning in one line: it is left to the window.
bool movesBetweenLines(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

struct WordKey {
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation move;
    QTextCursor::MoveMode mode;
    bool deletes;
};

constexpr std::array WordKeys = {
    WordKey{QKeySequence::MoveToNextWord, QTextCursor::NextWord, QTextCursor::MoveAnchor, false},
    WordKey{QKeySequence::MoveToPreviousWord, QTextCursor::PreviousWord, QTextCursor::MoveAnchor, false},
    WordKey{QKeySequence::SelectNextWord, QTextCursor::NextWord, QTextCursor::KeepAnchor, false},
    WordKey{QKeySequence::SelectPreviousWord, QTextCursor::PreviousWord, QTextCursor::KeepAnchor, false},
    WordKey{QKeySequence::DeleteEndOfWord, QTextCursor::NextWord, QTextCursor::KeepAnchor, true},
    WordKey{QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord, QTextCursor::KeepAnchor, true},
};

/// Qt takes a token for a letter of the word beside it; here it is a word of its own.
int wordEnd(const OEXTokenTextStorage &text, int from, int to)
{
    const int step = from < to ? 1 : -1;
    for (int position = from; position != to; position += step) {
        const bool isToken = text.attachmentAtIndex(step > 0 ? position : position - 1) != nullptr;
        if (isToken)
            return position == from ? position + step : position;
    }
    return to;
}

} // namespace

void OEXTokenField::keyPressEvent(QKeyEvent *event)
{
    if (const std::optional<ZEVTextCommand> command = commandOfKey(*event)) {
        event->setAccepted(doCommand(*command));
    } else if (movesBetweenLines(event->key())) {
        event->ignore();
    } else if (moveByWord(event) || (endsToken(*event) && tokenizeBeforeCaret())) {
        event->accept();
    } else {
        QTextEdit::keyPressEvent(event);
    }
}

bool OEXTokenField::endsToken(const QKeyEvent &event) const
{
    return !isReadOnly() && !event.text().isEmpty() && m_tokenizingCharacters.contains(event.text());
}

bool OEXTokenField::moveByWord(QKeyEvent *event)
{
    const auto found =
        std::ranges::find_if(WordKeys, [&](const WordKey &k) { return event->matches(k.key); });
    QTextCursor cursor = textCursor();
    if (found == WordKeys.end() || (found->deletes && (isReadOnly() || cursor.hasSelection())))
        return false;
    const int from = cursor.position();
    cursor.movePosition(found->move);
    const int to = wordEnd(*textStorage(), from, cursor.position());
    cursor.setPosition(found->mode == QTextCursor::KeepAnchor ? textCursor().anchor() : to);
    cursor.setPosition(to, found->mode);
    if (found->deletes)
        cursor.removeSelectedText();
    setTextCursor(cursor);
    return true;
}

bool OEXTokenField::doCommand(ZEVTextCommand command)
{
    const QPointer guard(this);
    if ((m_delegate && m_delegate->doCommandBySelector(this, command)) || !guard || performCommand(command))
        return true;
    return command == ZEVTextCommand::InsertNewlineBackward && doCommand(ZEVTextCommand::InsertNewline);
}

bool OEXTokenField::performCommand(ZEVTextCommand command)
{
    if (command != ZEVTextCommand::InsertNewline)
        return false;
    sendAction();
    return true;
}

/// The editing string counts from the last tokenizing character (which then belongs to the token), else from
/// the last token on.
bool OEXTokenField::tokenizeBeforeCaret()
{
    const ZEVRange caret = selectedRange();
    if (!m_delegate || caret.length > 0)
        return false;
    const QString text = textStorage()->string().first(caret.location);
    qsizetype start = caret.location;
    while (start > 0 && !textStorage()->attachmentAtIndex(start - 1)
           && !m_tokenizingCharacters.contains(text.at(start - 1)))
        --start;
    const QVariant object = start < caret.location
        ? m_delegate->representedObjectForEditingString(this, text.mid(start))
        : QVariant();
    if (!object.isValid())
        return false;
    if (start > 0 && m_tokenizingCharacters.contains(text.at(start - 1)))
        --start;
    setSelectedRange({start, caret.location - start});
    insertObjects({object});
    return true;
}

void OEXTokenField::insertObjects(const QVariantList &objects)
{
    const ZEVAttributedString text = m_cell->attributedStringForObjects(objects);
    const ZEVRange selection = selectedRange();
    textStorage()->replaceCharactersInRange(selection, text);
    setSelectedRange({selection.location + text.length(), 0});
    ensureCursorVisible();
}

std::optional<qsizetype> OEXTokenField::tokenAt(QPoint position) const
{
    return oneLineLayout()->objectAt(position.x() - textOrigin().x());
}

/// As what is selected by dragging, what was clicked can be pasted with the middle button.
void OEXTokenField::selectClickedToken(qsizetype index)
{
    clickedOnCellAtIndex(index);
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection())
        clipboard->setMimeData(createMimeDataFromSelection(), QClipboard::Selection);
}

void OEXTokenField::mousePressEvent(QMouseEvent *event)
{
    m_pressedToken = std::nullopt;
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier)
        m_pressedToken = tokenAt(event->position().toPoint());
    // Inside a selection the press may begin a drag of all of it; what was clicked is selected afterwards.
    const bool selected = m_pressedToken && selectedRange().location <= *m_pressedToken
        && *m_pressedToken < selectedRange().end();
    if (m_pressedToken && !selected)
        clickedOnCellAtIndex(*m_pressedToken);
    QTextEdit::mousePressEvent(event);
}

void OEXTokenField::mouseReleaseEvent(QMouseEvent *event)
{
    const bool onlyClicked = selectedRange().length > 0;
    QTextEdit::mouseReleaseEvent(event);
    // A click inside a selection makes the editor forget the selection: it was no drag.
    if (m_pressedToken && onlyClicked && tokenAt(event->position().toPoint()) == m_pressedToken)
        selectClickedToken(*m_pressedToken);
    m_pressedToken = std::nullopt;
}

/// Qt takes a token for a letter of the word beside it, so its selection ends at the tokens.
void OEXTokenField::mouseDoubleClickEvent(QMouseEvent *event)
{
    const std::optional<qsizetype> token = tokenAt(event->position().toPoint());
    const int clicked = cursorForPosition(event->position().toPoint()).position();
    QTextEdit::mouseDoubleClickEvent(event);
    if (token) {
        selectClickedToken(*token);
        return;
    }
    const ZEVRange word = selectedRange();
    if (word.location > clicked || clicked > word.end())
        return;
    qsizetype start = clicked, end = clicked;
    while (start > word.location && !textStorage()->attachmentAtIndex(start - 1))
        --start;
    while (end < word.end() && !textStorage()->attachmentAtIndex(end))
        ++end;
    setSelectedRange({start, end - start});
}

/// One line scrolls sideways only. The editor's own way would also zoom a read-only text.
void OEXTokenField::wheelEvent(QWheelEvent *event)
{
    if (qAbs(event->angleDelta().x()) > qAbs(event->angleDelta().y()))
        QCoreApplication::sendEvent(horizontalScrollBar(), event);
    else
        event->ignore();
}

bool OEXTokenField::canInsertFromMimeData(const QMimeData *source) const
{
    return ZEVTokenMimeData::canBeRead(source) || source->hasText();
}

void OEXTokenField::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly())
        return;
    const std::optional<QVariantList> objects = ZEVTokenMimeData::objects(source, this);
    if (objects || source->hasText())
        insertObjects(objects ? *objects : objectsForPastedText(source->text()));
}

QVariantList OEXTokenField::objectsForPastedText(const QString &text) const
{
    return {OEXTokenTextStorage::singleLine(text)};
}

QMimeData *OEXTokenField::createMimeDataFromSelection() const
{
    const QVariantList objects =
        OEXTokenFieldCell::objectsForAttributedString(textStorage()->attributedSubstring(selectedRange()));
    auto *tokens = new ZEVTokenMimeData(objects);
    if (!m_delegate || !m_delegate->writeRepresentedObjects(this, objects, tokens))
        tokens->setText(textFormOfObjects(objects));
    return tokens;
}

QString OEXTokenField::textFormOfObjects(const QVariantList &objects) const
{
    QString text;
    for (const QVariant &object : objects) {
        if (object.typeId() == QMetaType::QString)
            text += object.toString();
        else if (m_delegate)
            text += m_delegate->editingStringForRepresentedObject(this, object).value_or(QString());
    }
    return text;
}
