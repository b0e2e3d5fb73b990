// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QUndoCommand>

/// Changes the artwork of any number of tracks in one step of the undo stack.
class ArtworkCommand : public QUndoCommand {
public:
    ArtworkCommand(const QString &name, TrackTableModel *model, QList<ArtworkChange> changes);

    void redo() override { exchange(); }
    void undo() override { exchange(); }

private:
    void exchange();

    TrackTableModel *m_model;
    QList<ArtworkChange> m_changes;
};
