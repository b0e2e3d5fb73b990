// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QUndoCommand>

/// Changes something of any number of tracks in one step of the undo stack: a Value is an ArtworkChange or an
/// OtherTagsChange, and \a Set what the model takes it by.
template <typename Value, void (TrackTableModel::*Set)(const QList<Value> &)>
class ValueCommand : public QUndoCommand {
public:
    ValueCommand(const QString &name, TrackTableModel *model, QList<Value> changes)
        : QUndoCommand(name)
        , m_model(model)
        , m_changes(std::move(changes))
    {
    }

    void redo() override { exchange(); }
    void undo() override { exchange(); }

private:
    void exchange()
    {
        (m_model->*Set)(m_changes);
        for (Value &change : m_changes)
            std::swap(change.before, change.after);
    }

    TrackTableModel *m_model;
    QList<Value> m_changes;
};

using ArtworkCommand = ValueCommand<ArtworkChange, &TrackTableModel::setArtwork>;
using OtherTagsCommand = ValueCommand<OtherTagsChange, &TrackTableModel::setOtherTags>;
