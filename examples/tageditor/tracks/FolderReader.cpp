// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/FolderReader.h>

#include <tageditor/tracks/FolderListing.h>
#include <tageditor/tracks/NaturalOrder.h>
#include <tageditor/tracks/TagReader.h>

#include <QElapsedTimer>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr qint64 MillisecondsPerBatch = 50;

std::vector<fs::path> sortedByName(const std::vector<fs::path> &paths)
{
    QStringList names;
    for (const fs::path &path : paths)
        names.append(displayedPath(path));
    std::vector<fs::path> sorted;
    sorted.reserve(paths.size());
    for (const int index : naturalOrder(names))
        sorted.push_back(paths[size_t(index)]);
    return sorted;
}

QString message(const std::error_code &error) { return QString::fromStdString(error.message()); }

} // namespace

/// One reading, on its thread. Names are handled as bytes, so that a file whose name is no UTF-8 is read
/// like any other.
class FolderReader::Worker {
public:
    Worker(FolderReader *reader, quint64 number, const QString &folder, std::stop_token stop)
        : m_reader(reader)
        , m_number(number)
        , m_folder(folder.toStdString())
        , m_stop(std::move(stop))
    {
    }

    void run()
    {
        QString failure = listFiles();
        if (failure.isEmpty())
            failure = readFiles();
        post([failure](FolderReader &reader) {
            reader.m_isReading = false;
            Q_EMIT reader.finished(failure);
        });
    }

private:
    /// Runs \a report on the main thread, unless another reading has begun by then.
    void post(const std::function<void(FolderReader &)> &report)
    {
        if (m_stop.stop_requested())
            return;
        QMetaObject::invokeMethod(
            m_reader,
            [reader = m_reader, number = m_number, report] {
                if (reader->m_readingNumber == number)
                    report(*reader);
            },
            Qt::QueuedConnection);
    }

    QString listFiles()
    {
        const FolderListing listing{
            .isStopped = [this] { return m_stop.stop_requested(); },
            .skipped = [this](const fs::path &folder,
                              const std::error_code &error) { skip(folder, message(error)); },
        };
        if (const std::error_code error = listing.list(m_folder, m_files))
            return message(error);
        m_files = sortedByName(m_files);
        return {};
    }

    void skip(const fs::path &folder, const QString &reason)
    {
        post([folder, reason](FolderReader &reader) {
            Q_EMIT reader.folderSkipped(displayedPath(folder), reason);
        });
    }

    QString readFiles()
    {
        QElapsedTimer sinceBatch;
        sinceBatch.start();
        sendBatch(0);
        for (size_t n = 0; n < m_files.size() && !m_stop.stop_requested(); ++n) {
            m_batch.append(TagReader::read(m_files[n]));
            if (sinceBatch.hasExpired(MillisecondsPerBatch)) {
                sendBatch(n + 1);
                sinceBatch.restart();
            }
        }
        sendBatch(m_files.size());
        std::error_code error; // the folder may have gone while it was read
        const fs::directory_iterator probe(m_folder, error);
        return error ? message(error) : QString();
    }

    void sendBatch(size_t read)
    {
        post([batch = std::exchange(m_batch, {}), read, total = m_files.size()](FolderReader &reader) {
            if (!batch.isEmpty())
                Q_EMIT reader.tracksRead(batch);
            Q_EMIT reader.progressed(qsizetype(read), qsizetype(total));
        });
    }

    FolderReader *m_reader;
    quint64 m_number;
    fs::path m_folder;
    std::stop_token m_stop;
    std::vector<fs::path> m_files;
    QList<Track> m_batch;
};

FolderReader::FolderReader(QObject *parent)
    : QObject(parent)
{
}

FolderReader::~FolderReader() = default;

void FolderReader::readFolder(const QString &folder)
{
    cancel();
    m_isReading = true;
    Q_EMIT progressed(0, 0);
    m_thread = std::jthread([this, folder, number = m_readingNumber](std::stop_token stop) {
        Worker(this, number, folder, std::move(stop)).run();
    });
}

void FolderReader::cancel()
{
    m_thread = {};
    ++m_readingNumber;
    m_isReading = false;
}
