// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QObject;
class QWidget;

/// Text views and their part in finding. Text views are QTextEdit, QPlainTextEdit, QLineEdit and their heirs;
/// those of one line are field editors.
namespace ZEVTextViewFindPboard {

ZEV_EXPORT bool isTextView(const QWidget *widget);

/// A widget of several lines that is one line for its user says so by its property "isFieldEditor".
ZEV_EXPORT bool isFieldEditor(const QWidget *textView);

/// Puts the selected text, or an empty one, on the find pasteboard, and lets all find fields read it.
ZEV_EXPORT void placeEditorStringOnFindPasteboard(const QWidget *textView);

/// What a text view does with an action that no finder takes: next, previous and using the selection, over
/// the text of the find pasteboard and around the end. A view with an invokable method
/// performTextFinderAction(QObject *sender) is asked instead. \a sender carries the action in its tag.
ZEV_EXPORT void performTextFinderAction(QWidget *textView, QObject *sender);

} // namespace ZEVTextViewFindPboard
