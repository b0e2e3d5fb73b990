// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/inspector/TagField.h>

#include <tageditor/inspector/FieldUndo.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>

TagField::TagField(ZEVPatternTokens *tokens, QWidget *parent)
    : ZEVTokenField(parent)
{
    setDelegate(tokens);
    setLossless(true);
    setSelectsTextWhenFocused(true);
    auto *menu = new QMenu(this);
    setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this,
            [this, menu, tokens] { ZEVPatternTokens::fillMenu(menu, this, tokens->groups()); });
    connect(this, &OEXTokenField::actionTriggered, this, &TagField::editingFinished);
}

bool TagField::event(QEvent *event)
{
    return FieldUndo::passesOn(event, *textStorage()) || ZEVTokenField::event(event);
}

/// Where nothing was typed the key goes on, to what else it closes.
bool TagField::performCommand(ZEVTextCommand command)
{
    if (command != ZEVTextCommand::CancelOperation || !textStorage()->isUndoAvailable())
        return ZEVTokenField::performCommand(command);
    Q_EMIT cancelled();
    return true;
}

void TagField::keyPressEvent(QKeyEvent *event)
{
    const bool empties = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (empties && objectValue().isEmpty() && !textStorage()->isUndoAvailable())
        Q_EMIT emptied();
    ZEVTokenField::keyPressEvent(event);
}

/// A menu only borrows the focus.
void TagField::focusOutEvent(QFocusEvent *event)
{
    ZEVTokenField::focusOutEvent(event);
    const bool comesBack = event->reason() == Qt::PopupFocusReason
        || event->reason() == Qt::MenuBarFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack) // one selection is enough for a window
        moveCursor(QTextCursor::Start);
    if (!comesBack || event->reason() == Qt::ActiveWindowFocusReason)
        Q_EMIT editingFinished();
}
