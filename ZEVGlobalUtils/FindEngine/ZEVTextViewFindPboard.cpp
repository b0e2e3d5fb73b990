// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextViewFindPboard.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

/// As it is in the document: a plain text of the selection would have plain spaces for those that do not break.
QString selectedText(const QWidget *textView)
{
    QString text;
    if (const auto *line = qobject_cast<const QLineEdit *>(textView))
        text = line->selectedText();
    else if (const auto *edit = qobject_cast<const QTextEdit *>(textView))
        text = edit->textCursor().selectedText();
    else if (const auto *plainEdit = qobject_cast<const QPlainTextEdit *>(textView))
        text = plainEdit->textCursor().selectedText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

/// Both classes of editors search alike, without a common base.
template <typename Editor>
void findInEditor(Editor *editor, const QString &string, QTextDocument::FindFlags flags)
{
    if (editor->find(string, flags))
        return;
    const QTextCursor before = editor->textCursor();
    editor->moveCursor(flags & QTextDocument::FindBackward ? QTextCursor::End : QTextCursor::Start);
    if (!editor->find(string, flags))
        editor->setTextCursor(before);
}

/// Asked first, since a call of a method that is not there makes Qt complain.
bool answers(const QObject *responder)
{
    return responder->metaObject()->indexOfMethod("performTextFinderAction(QObject*)") >= 0;
}

void findNext(QWidget *textView, QTextDocument::FindFlags flags)
{
    const auto pasteboard = ZEVFindPasteboard::findPasteboard();
    const QString string = pasteboard ? pasteboard->string().value_or(QString()) : QString();
    if (string.isEmpty())
        return;
    if (auto *edit = qobject_cast<QTextEdit *>(textView))
        findInEditor(edit, string, flags);
    else if (auto *plainEdit = qobject_cast<QPlainTextEdit *>(textView))
        findInEditor(plainEdit, string, flags);
}

} // namespace

bool ZEVTextViewFindPboard::isTextView(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTextEdit *>(widget)
        || qobject_cast<const QPlainTextEdit *>(widget);
}

bool ZEVTextViewFindPboard::isFieldEditor(const QWidget *textView)
{
    return qobject_cast<const QLineEdit *>(textView) || textView->property("isFieldEditor").toBool();
}

QWidget *ZEVTextViewFindPboard::textViewOf(QWidget *focused)
{
    if (auto *box = qobject_cast<QComboBox *>(focused))
        return box->lineEdit();
    if (auto *box = qobject_cast<QAbstractSpinBox *>(focused))
        return box->findChild<QLineEdit *>();
    return focused && isTextView(focused) ? focused : nullptr;
}

bool ZEVTextViewFindPboard::isSecret(const QWidget *textView)
{
    const auto *line = qobject_cast<const QLineEdit *>(textView);
    return line && line->echoMode() != QLineEdit::Normal;
}

void ZEVTextViewFindPboard::placeEditorStringOnFindPasteboard(const QWidget *textView)
{
    if (isSecret(textView))
        return;
    auto pasteboard = ZEVFindPasteboard::findPasteboard();
    if (!pasteboard)
        return;
    pasteboard->setString(selectedText(textView));
    // Kept: nothing has become active, but that is when find fields read the pasteboard.
    Q_EMIT ZEVApplicationActivity::shared()->didBecomeActive();
}

void ZEVTextViewFindPboard::performTextFinderAction(QWidget *textView, QObject *sender)
{
    for (QObject *responder = textView; responder; responder = responder->parent()) {
        if (answers(responder)) {
            QMetaObject::invokeMethod(responder, "performTextFinderAction", Q_ARG(QObject *, sender));
            return;
        }
    }
    switch (sender->property("tag").toLongLong()) {
    case ZEVFindActionNumber::NextMatch:
        findNext(textView, {});
        break;
    case ZEVFindActionNumber::PreviousMatch:
        findNext(textView, QTextDocument::FindBackward);
        break;
    case ZEVFindActionNumber::SetSearchString:
        placeEditorStringOnFindPasteboard(textView);
        break;
    default:
        break;
    }
}
