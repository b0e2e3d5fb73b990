// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QUndoCommand>

/// Changes any number of texts in one step of the undo stack.
class TextCommand : public QUndoCommand {
public:
    /// \a changes holds a cell once at most.
    TextCommand(const QString &name, TrackTableModel *model, QList<TextChange> changes);

    void redo() override { exchange(); }
    void undo() override { exchange(); }

private:
    /// What changes back is all that has to be kept.
    void exchange() { m_changes = m_model->setTexts(m_changes); }

    TrackTableModel *m_model;
    QList<TextChange> m_changes;
};
