// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QObject>

#include <thread>

/// Reads the tags of all audio files in a folder and below it on a thread of its own. Symbolic links to
/// folders are not followed, and what is hidden within, such as a volume's trash, is left out. All signals come
/// on the main thread, and none of a reading that was cancelled.
class FolderReader : public QObject {
    Q_OBJECT

public:
    explicit FolderReader(QObject *parent = nullptr);
    ~FolderReader() override;

    /// Begins anew; what was going on is cancelled.
    void readFolder(const QString &folder);

    /// Waits for the file at hand, but for no more.
    void cancel();

    bool isReading() const { return m_isReading; }

Q_SIGNALS:
    /// In the order of the files' names, about every 50 ms.
    void tracksRead(const QList<Track> &tracks);

    /// \a total is 0 as long as the files are being counted.
    void progressed(qsizetype read, qsizetype total);

    /// A folder within could not be listed; the rest goes on.
    void folderSkipped(const QString &folder, const QString &reason);

    /// Everything was read; or, with a \a failure, the folder itself is not there or cannot be listed.
    void finished(const QString &failure);

private:
    class Worker;

    std::jthread m_thread;
    quint64 m_readingNumber = 0;
    bool m_isReading = false;
};
