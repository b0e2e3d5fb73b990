// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TagWriter.h>

#include <QObject>

#include <atomic>
#include <thread>
#include <vector>

/// Writes tags into any number of files, on as many threads as the machine has cores. All signals come on the
/// main thread, one for each file as it is done.
class FileWriting : public QObject {
    Q_OBJECT

public:
    struct Job {
        int trackId = -1;
        std::filesystem::path path;
        TagChanges changes;
    };

    explicit FileWriting(QList<Job> jobs, QObject *parent = nullptr);

    /// Waits for the files at hand.
    ~FileWriting() override;

    void start();
    bool isRunning() const { return m_running > 0; }
    qsizetype numberOfJobs() const { return m_jobs.size(); }

    /// The files at hand are finished.
    void cancel() { m_next = m_jobs.size(); }

Q_SIGNALS:
    void written(qsizetype job, const TagWriter::Result &result);
    void finished();

private:
    void work();

    const QList<Job> m_jobs;
    std::atomic<qsizetype> m_next = 0;
    int m_running = 0; ///< threads
    std::vector<std::jthread> m_threads;
};
