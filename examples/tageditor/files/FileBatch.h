// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/files/FileJournal.h>

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QObject>

#include <atomic>
#include <thread>

/// Moves, copies or trashes any number of files on a thread of its own. Where a name is taken the user is asked. What
/// is replaced goes to the trash, so that the batch can be undone. All signals come on the main thread.
class FileBatch : public QObject {
    Q_OBJECT

public:
    explicit FileBatch(const FileJournal &journal, QObject *parent = nullptr);
    ~FileBatch() override;

    /// Files whose new names are old ones of others go the right way round, in a circle too. Nothing is begun
    /// while another batch is under way.
    void run(const QList<FileChange> &changes);

    /// Takes back what the journal tells of, the last one first.
    void undo();

    /// Takes back \a changes, the last one first. What of them cannot be is in the journal then.
    void undo(const QList<FileChange> &changes);

    /// The file at hand comes back to where it was.
    void cancel() { m_isCancelled = true; }

    /// Cancels, and waits with the events that the thread may wait for.
    void cancelAndWait();

    bool isRunning() const { return m_isRunning; }

    struct Result {
        QList<FileChange> done;
        int skipped = 0;
        bool isStopped = false; ///< by the user
        QList<ZEVError> errors; ///< of the files that could not be brought to their places
    };

Q_SIGNALS:
    /// \a fraction is from 0 to 1, of bytes where they are copied, else of files.
    void progressed(double fraction, const QString &name);
    void finished(const FileBatch::Result &result);

private:
    class Worker;
    void start(const std::function<Result(Worker &)> &work);

    FileJournal m_journal;
    ZEVFileManager m_manager;
    std::atomic<bool> m_isCancelled = false;
    bool m_isRunning = false;
    std::jthread m_thread;
};
