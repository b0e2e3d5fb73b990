// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/SelectedArtwork.h>

#include <tageditor/artwork/ArtworkTag.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QPointer>
#include <QTableView>
#include <QThreadPool>

namespace {

/// Where the artwork of a track is to be had: from its file, unless it was changed.
struct Source {
    std::filesystem::path path;
    std::optional<QByteArray> changed;

    QByteArray bytes() const { return changed ? *changed : ArtworkTag::read(path); }
};

using Result = std::pair<SelectedArtwork::State, std::shared_ptr<ZEVImageDescription>>;

/// The first difference settles it.
Result common(const QList<Source> &sources, QSize room, const std::atomic_bool &isStopped)
{
    const QByteArray first = sources.first().bytes();
    for (qsizetype n = 1; n < sources.size() && !isStopped; ++n) {
        if (sources.at(n).bytes() != first)
            return {SelectedArtwork::Mixed, nullptr};
    }
    if (first.isEmpty() || isStopped)
        return {SelectedArtwork::None, nullptr};
    return {SelectedArtwork::Same, std::make_shared<ZEVImageDescription>(first, room)};
}

} // namespace

SelectedArtwork::SelectedArtwork(TrackTableModel *model, QTableView *table)
    : QObject(table)
    , m_model(model)
    , m_table(table)
{
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SelectedArtwork::readLater);
    connect(model, &TrackTableModel::modelReset, this, &SelectedArtwork::readLater);
    connect(model, &TrackTableModel::artworkChanged, this, &SelectedArtwork::readLater);
}

SelectedArtwork::~SelectedArtwork() { stop(); }

void SelectedArtwork::stop()
{
    if (m_isStopped)
        *m_isStopped = true;
}

QList<Track> SelectedArtwork::tracks() const
{
    QList<Track> tracks;
    for (const int row : TableSelection::rows(*m_table->selectionModel())) {
        if (m_model->track(row).isReadable())
            tracks.append(m_model->track(row));
    }
    return tracks;
}

/// A selection comes about in many steps.
void SelectedArtwork::readLater()
{
    stop();
    m_state = Reading;
    m_artwork.reset();
    Q_EMIT changed();
    if (!std::exchange(m_isPending, true))
        QMetaObject::invokeMethod(this, &SelectedArtwork::read, Qt::QueuedConnection);
}

void SelectedArtwork::read()
{
    m_isPending = false;
    QList<Source> sources;
    for (const Track &track : tracks())
        sources.append({track.path, m_model->changedArtwork(track.id)});
    if (sources.isEmpty())
        return finish(NoTracks, nullptr);
    const auto isStopped = m_isStopped = std::make_shared<std::atomic_bool>(false);
    QThreadPool::globalInstance()->start([sources, isStopped, room = m_room, reader = QPointer(this)] {
        const auto result = common(sources, room, *isStopped);
        QMetaObject::invokeMethod(qApp, [=] {
            if (reader && !*isStopped)
                reader->finish(result.first, result.second);
        });
    });
}

void SelectedArtwork::finish(State state, const std::shared_ptr<ZEVImageDescription> &artwork)
{
    m_state = state;
    m_artwork = artwork;
    Q_EMIT changed();
}
