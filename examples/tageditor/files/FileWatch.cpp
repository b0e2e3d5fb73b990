// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileWatch.h>

#include <tageditor/tracks/FolderListing.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QGuiApplication>
#include <QPointer>
#include <QSet>
#include <QThreadPool>

#include <set>

namespace {

/// Programs write a file in many steps; so many milliseconds after the last of them it is looked at.
constexpr int Patience = 400;

/// A system lets its user watch some thousands of folders; the rest is looked at when the user returns.
constexpr qsizetype MostFolders = 500;

} // namespace

FileWatch::FileWatch(TrackTableModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(Patience);
    connect(&m_timer, &QTimer::timeout, this, &FileWatch::lookNow);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::lookSoon);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            lookSoon();
    });
    connect(model, &TrackTableModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { watchFolders(first, last); });
    connect(model, &TrackTableModel::cleared, this, &FileWatch::forget);
}

FileWatch::~FileWatch()
{
    if (m_isStopped)
        *m_isStopped = true;
}

/// What is found meanwhile belongs to another folder.
void FileWatch::forget()
{
    m_folder.clear();
    if (m_isStopped)
        *m_isStopped = true;
    if (const QStringList folders = m_watcher.directories(); !folders.isEmpty())
        m_watcher.removePaths(folders);
}

/// A folder whose name is no UTF-8 cannot be named to the watcher.
void FileWatch::watchFolders(int first, int last)
{
    QSet<QString> folders;
    for (int row = first; row <= last; ++row)
        folders.insert(QString::fromStdString(m_model->track(row).path.parent_path().native()));
    const QStringList watched = m_watcher.directories();
    folders.subtract(QSet<QString>(watched.begin(), watched.end()));
    folders.remove({});
    if (!folders.isEmpty() && watched.size() + folders.size() <= MostFolders)
        m_watcher.addPaths(folders.values());
}

void FileWatch::lookNow()
{
    if (m_isLooking || m_isPaused)
        return m_timer.start();
    QList<Known> files;
    for (const Track &track : m_model->tracks())
        files.append({track.id, track.path, track.stamp});
    if (files.isEmpty() && m_folder.isEmpty())
        return;
    m_isLooking = true;
    const auto isStopped = m_isStopped = std::make_shared<std::atomic_bool>(false);
    QThreadPool::globalInstance()->start([files, isStopped, folder = m_folder, watch = QPointer(this)] {
        const QList<Found> found = look(files, folder, *isStopped);
        QMetaObject::invokeMethod(qApp, [watch, found] {
            if (watch)
                watch->show(found);
        });
    });
}

void FileWatch::setFolder(const QString &folder)
{
    m_folder = folder;
    if (!folder.isEmpty())
        m_watcher.addPath(folder);
}

QList<FileWatch::Found> FileWatch::look(const QList<Known> &files, const QString &folder,
                                        const std::atomic_bool &isStopped)
{
    QList<Found> found;
    std::set<std::filesystem::path> paths;
    for (const Known &known : files) {
        if (isStopped)
            break;
        paths.insert(known.path);
        if (FileStamp::of(known.path) != known.stamp)
            found.append({known, TagReader::read(known.path)});
    }
    if (folder.isEmpty())
        return found;
    std::vector<std::filesystem::path> listed;
    FolderListing{.isStopped = [&] { return isStopped.load(); }, .skipped = {}}.list(folder.toStdString(),
                                                                                     listed);
    std::ranges::sort(listed);
    for (const std::filesystem::path &path : listed) {
        if (!isStopped && !paths.contains(path))
            found.append({{-1, path, {}}, TagReader::read(path)});
    }
    return found;
}

/// A file that has changed may be changing still, so it is looked at again.
void FileWatch::show(const QList<Found> &found)
{
    m_isLooking = false;
    if (m_isPaused || *m_isStopped)
        return lookSoon();
    int changed = 0;
    int gone = 0;
    for (const Found &one : found) {
        if (one.known.trackId >= 0 && showAgain(one))
            ++(one.track.stamp ? changed : gone);
    }
    const int added = add(found);
    if (changed > 0 || gone > 0 || added > 0) {
        Q_EMIT noticed(changed, gone, added);
        lookSoon();
    }
}

/// Meanwhile a track may have been saved, renamed or changed here.
bool FileWatch::showAgain(const Found &found)
{
    const auto &[known, track] = found;
    if (!m_model->hasTrack(known.trackId) || m_model->hasChanges(known.trackId))
        return false;
    const Track &shown = m_model->trackWithId(known.trackId);
    if (shown.path != known.path || shown.stamp != known.stamp)
        return false;
    m_model->replaceTrack(known.trackId, track);
    return true;
}

int FileWatch::add(const QList<Found> &found)
{
    std::set<std::filesystem::path> paths;
    for (const Track &track : m_model->tracks())
        paths.insert(track.path);
    QList<Track> tracks;
    for (const Found &one : found) {
        if (one.known.trackId < 0 && one.track.stamp && !paths.contains(one.known.path))
            tracks.append(one.track);
    }
    m_model->append(tracks);
    return int(tracks.size());
}
