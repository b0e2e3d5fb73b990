// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QEvent;
class QTextDocument;

/// The keys of undo and redo belong to a field as long as it has something of its own to undo, and to the
/// window's steps otherwise.
namespace FieldUndo {

/// Whether \a event asks the editor of \a document for such a key, which is the window's; it is passed on then.
bool passesOn(QEvent *event, const QTextDocument &document);

} // namespace FieldUndo
