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

/// The text view that \a focused is or has: an editable combo box and a spin box edit in one. Null for none.
ZEV_EXPORT QWidget *textViewOf(QWidget *focused);

/// A field that hides what is typed into it; its text is nobody else's.
ZEV_EXPORT bool isSecret(const QWidget *textView);

/// A widget of several lines that is one line for its user says so by its property "isFieldEditor".
ZEV_EXPORT bool isFieldEditor(const QWidget *textView);

/// Puts the selected text, or an empty one, on the find pasteboard, and lets all find fields read it. Nothing
/// of a secret field.
ZEV_EXPORT void placeEditorStringOnFindPasteboard(const QWidget *textView);

/// Sends an action that no finder takes up from \a textView, to the first of it and its parents that has an
/// invokable method performTextFinderAction(QObject *sender). Where none has, the view does what it can by
/// itself: next, previous and using the selection, over the text of the find pasteboard and around the end.
/// \a sender carries the action in its property "tag".
ZEV_EXPORT void performTextFinderAction(QWidget *textView, QObject *sender);

} // namespace ZEVTextViewFindPboard
