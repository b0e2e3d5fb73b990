// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkCommand.h>

ArtworkCommand::ArtworkCommand(const QString &name, TrackTableModel *model, QList<ArtworkChange> changes)
    : QUndoCommand(name)
    , m_model(model)
    , m_changes(std::move(changes))
{
}

void ArtworkCommand::exchange()
{
    m_model->setArtwork(m_changes);
    for (ArtworkChange &change : m_changes)
        std::swap(change.before, change.after);
}
