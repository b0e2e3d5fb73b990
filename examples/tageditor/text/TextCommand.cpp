// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TextCommand.h>

TextCommand::TextCommand(const QString &name, TrackTableModel *model, QList<TextChange> changes)
    : QUndoCommand(name)
    , m_model(model)
    , m_changes(std::move(changes))
{
}
