// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QObject>
#include <QSize>

#include <atomic>
#include <memory>

class QTableView;
class TrackTableModel;
class ZEVImageDescription;

/// The artwork that the selected tracks have in common. It is read and decoded on another thread, anew whenever the
/// selection or the artwork of a track has changed.
class SelectedArtwork : public QObject {
    Q_OBJECT

public:
    SelectedArtwork(TrackTableModel *model, QTableView *table);
    ~SelectedArtwork() override;

    enum State {
        NoTracks, ///< none selected that could be read
        Reading,
        None, ///< no track has any
        Same, ///< all have the same
        Mixed,
    };
    State state() const { return m_state; }
    /// Null unless the state is Same.
    const std::shared_ptr<ZEVImageDescription> &artwork() const { return m_artwork; }

    /// The pixels in which artwork that is read from now on is to be shown.
    void setRoom(QSize room) { m_room = room; }

    /// The readable ones among the selected, in the order of the rows.
    QList<Track> tracks() const;

Q_SIGNALS:
    void changed();

private:
    void readLater();
    void read();
    void finish(State state, const std::shared_ptr<ZEVImageDescription> &artwork);
    void stop();

    TrackTableModel *m_model;
    QTableView *m_table;
    QSize m_room;
    bool m_isPending = false;
    State m_state = NoTracks;
    std::shared_ptr<ZEVImageDescription> m_artwork;
    std::shared_ptr<std::atomic_bool> m_isStopped;
};
