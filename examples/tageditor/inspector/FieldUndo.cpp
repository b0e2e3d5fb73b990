// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/inspector/FieldUndo.h>

#include <QKeyEvent>
#include <QTextDocument>

bool FieldUndo::passesOn(QEvent *event, const QTextDocument &document)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isWindows = (key->matches(QKeySequence::Undo) && !document.isUndoAvailable())
        || (key->matches(QKeySequence::Redo) && !document.isRedoAvailable());
    if (isWindows)
        event->ignore();
    return isWindows;
}
