// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>

class TrackTableModel;

/// Notices what other programs do to the files of the table, and shows it there: as it comes for files that
/// come, go or are replaced, and for all when the user returns to the window. New files of the folder are added
/// to the table. Texts that were changed here
/// stay; saving asks about them.
class FileWatch : public QObject {
    Q_OBJECT

public:
    explicit FileWatch(TrackTableModel *model, QObject *parent = nullptr);
    ~FileWatch() override;

    /// Whose new files are added; empty for none.
    void setFolder(const QString &folder);

    /// Looks at all files on another thread, once the events at hand are done.
    void lookSoon() { m_timer.start(); }

    /// What happens to the files in a pause is this program's own doing, which the table is told of when it
    /// is done.
    void setPaused(bool isPaused) { m_isPaused = isPaused; }

Q_SIGNALS:
    /// Of how many tracks the table shows something else now, and how many are new.
    void noticed(int changed, int gone, int added);

private:
    /// A file as the table knows it.
    struct Known {
        int trackId = -1;
        std::filesystem::path path;
        std::optional<FileStamp> stamp;
    };
    /// What became of it: a track that was read again, or that has an error.
    struct Found {
        Known known;
        Track track;
    };

    static QList<Found> look(const QList<Known> &files, const QString &folder,
                             const std::atomic_bool &isStopped);
    void forget();
    void watchFolders(int first, int last);
    void lookNow();
    void show(const QList<Found> &found);
    bool showAgain(const Found &found);
    int add(const QList<Found> &found);

    TrackTableModel *m_model;
    QFileSystemWatcher m_watcher;
    QString m_folder;
    QTimer m_timer;
    std::shared_ptr<std::atomic_bool> m_isStopped;
    bool m_isLooking = false;
    bool m_isPaused = false;
};
