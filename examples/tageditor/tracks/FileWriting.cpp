// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/FileWriting.h>

#include <QThread>

FileWriting::FileWriting(QList<Job> jobs, QObject *parent)
    : QObject(parent)
    , m_jobs(std::move(jobs))
{
}

FileWriting::~FileWriting() { cancel(); }

void FileWriting::start()
{
    m_running = int(std::clamp<qsizetype>(m_jobs.size(), 1, QThread::idealThreadCount()));
    for (int n = 0; n < m_running; ++n)
        m_threads.emplace_back([this] { work(); });
}

void FileWriting::work()
{
    for (qsizetype n = m_next++; n < m_jobs.size(); n = m_next++) {
        const TagWriter::Result result = TagWriter::write(m_jobs.at(n).path, m_jobs.at(n).changes);
        QMetaObject::invokeMethod(this, [this, n, result] { Q_EMIT written(n, result); });
    }
    QMetaObject::invokeMethod(this, [this] {
        if (--m_running == 0)
            Q_EMIT finished();
    });
}
