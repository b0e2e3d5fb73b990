// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextViewFindPboard.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocumentFragment>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

QString selectedText(const QWidget *textView)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(textView))
        return line->selectedText();
    QTextDocumentFragment selection;
    if (const auto *edit = qobject_cast<const QTextEdit *>(textView))
        selection = edit->textCursor().selection();
    else if (const auto *plainEdit = qobject_cast<const QPlainTextEdit *>(textView))
        selection = plainEdit->textCursor().selection();
    return selection.toPlainText();
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

void ZEVTextViewFindPboard::placeEditorStringOnFindPasteboard(const QWidget *textView)
{
    auto pasteboard = ZEVFindPasteboard::findPasteboard();
    if (!pasteboard)
        return;
    pasteboard->setString(selectedText(textView));
    // Kept: nothing has become active, but that is when find fields read the pasteboard.
    Q_EMIT ZEVApplicationActivity::shared()->didBecomeActive();
}

void ZEVTextViewFindPboard::performTextFinderAction(QWidget *textView, QObject *sender)
{
    if (QMetaObject::invokeMethod(textView, "performTextFinderAction", Q_ARG(QObject *, sender)))
        return;
    switch (sender->property("tag").toLongLong()) {
    case ZEVTextFinderAction::NextMatch:
        findNext(textView, {});
        break;
    case ZEVTextFinderAction::PreviousMatch:
        findNext(textView, QTextDocument::FindBackward);
        break;
    case ZEVTextFinderAction::SetSearchString:
        placeEditorStringOnFindPasteboard(textView);
        break;
    default:
        break;
    }
}
