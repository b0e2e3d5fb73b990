// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileBatch.h>

#include <tageditor/tracks/TagReader.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

qint64 sizeOf(const QUrl &url) { return QFileInfo(url.toLocalFile()).size(); }

/// What a song says of itself, for the user who has two of them to choose from.
QString describeSong(const QUrl &url)
{
    const Track track = TagReader::read(ZEVFileURL::path(url).toStdString());
    QStringList texts;
    for (const TrackField field : {TrackField::Artist, TrackField::Title, TrackField::Album}) {
        if (!track.text(field).isEmpty())
            texts.append(track.text(field));
    }
    return texts.join(u" — "_s);
}

/// Where the trash has put it; invalid when there is none for it.
QUrl trashed(const QUrl &url)
{
    QString place;
    return QFile::moveToTrash(url.toLocalFile(), &place) ? QUrl::fromLocalFile(place) : QUrl();
}

std::filesystem::path pathOf(const QUrl &url) { return ZEVFileURL::path(url).toStdString(); }

/// With all that lead to it; the topmost one that was not there, or an invalid address. Whatever stands in the
/// way shows when a file is to go there.
QUrl makeFolders(const std::filesystem::path &folder)
{
    std::error_code ignored;
    std::filesystem::path topmost;
    for (std::filesystem::path above = folder;
         !std::filesystem::exists(above, ignored) && above.has_relative_path(); above = above.parent_path())
        topmost = above;
    std::filesystem::create_directories(folder, ignored);
    return topmost.empty() ? QUrl() : ZEVFileURL::withPath(QByteArray::fromStdString(topmost.native()));
}

/// Those that were made for it, as long as nothing else is in them.
void removeFolders(const FileChange &change)
{
    if (!change.madeFolder.isValid())
        return;
    const std::filesystem::path topmost = pathOf(change.madeFolder);
    std::filesystem::path folder = pathOf(change.destination).parent_path();
    while (::rmdir(folder.c_str()) == 0 && folder != topmost)
        folder = folder.parent_path();
}

/// The trash notes where each of its files came from, in a folder beside that of the files.
void forgetTrashed(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    QFile::remove(file.dir().filePath(u"../info/"_s + file.fileName() + u".trashinfo"_s));
}

/// First those whose new name nobody has, then those that wait for them. In a circle one has to step aside:
/// it comes once more, to go on from there.
QList<FileChange> inOrder(QList<FileChange> waiting)
{
    QList<FileChange> ordered;
    while (!waiting.isEmpty()) {
        QSet<QUrl> taken;
        for (const FileChange &change : std::as_const(waiting))
            taken.insert(change.source);
        const auto isBlocked = [&](const FileChange &change) {
            return taken.contains(change.destination) && change.destination != change.source;
        };
        const auto blocked = std::stable_partition(waiting.begin(), waiting.end(), std::not_fn(isBlocked));
        if (blocked == waiting.begin()) {
            FileChange &first = waiting.first();
            FileChange aside = first;
            aside.destination = ZEVFileURL::byAppendingPathComponent(
                ZEVFileURL::byDeletingLastPathComponent(first.source),
                ".tageditor-" + QByteArray::number(QRandomGenerator::global()->generate64(), 16));
            ordered.append(aside);
            first.source = aside.destination;
            continue;
        }
        std::copy(waiting.begin(), blocked, std::back_inserter(ordered));
        waiting.erase(waiting.begin(), blocked);
    }
    return ordered;
}

} // namespace

/// One batch, on its thread.
class FileBatch::Worker {
public:
    explicit Worker(FileBatch *batch)
        : m_batch(batch)
        , m_manager(batch->m_manager)
    {
        m_manager.setProgressHandler([this](qint64 bytes) {
            report(bytes);
            return !m_batch->m_isCancelled;
        });
    }

    ~Worker() { m_manager.setProgressHandler({}); }
    Q_DISABLE_COPY_MOVE(Worker)

    Result run(const QList<FileChange> &changes)
    {
        plan(changes);
        for (const FileChange &change : changes) {
            if (m_batch->m_isCancelled || m_result.isStopped)
                break;
            begin(change);
            if (change.isTrashed || change.destination != change.source)
                perform(change);
            m_bytesBefore += m_sizes.takeFirst();
        }
        m_result.isStopped = m_result.isStopped || m_batch->m_isCancelled;
        return m_result;
    }

    Result undo(const QList<FileChange> &changes)
    {
        plan(changes);
        for (qsizetype n = changes.size(); n-- > 0;) {
            begin(changes[n]);
            takeBack(changes[n]);
        }
        m_batch->m_journal.begin();
        for (qsizetype n = m_left.size(); n-- > 0;)
            m_batch->m_journal.append(m_left.at(n));
        return m_result;
    }

private:
    void plan(const QList<FileChange> &changes)
    {
        m_count = changes.size();
        for (const FileChange &change : changes) {
            m_sizes.append(sizeOf(change.source));
            m_bytes += m_sizes.last();
        }
    }

    void begin(const FileChange &change)
    {
        m_name = ZEVFileURL::displayName(change.source);
        report(0);
        ++m_number;
    }

    /// Of files and of bytes, whichever is further: a rename copies nothing.
    void report(qint64 bytes)
    {
        const double ofFiles = m_count > 0 ? double(m_number) / double(m_count) : 0;
        const double ofBytes = m_bytes > 0 ? double(m_bytesBefore + bytes) / double(m_bytes) : 0;
        const int percent = int(100 * std::min(std::max(ofFiles * (bytes == 0), ofBytes), 1.0));
        if (std::exchange(m_percent, percent) != percent || bytes == 0)
            QMetaObject::invokeMethod(m_batch, [batch = m_batch, percent, name = m_name] {
                Q_EMIT batch->progressed(percent / 100.0, name);
            });
    }

    bool bring(const FileChange &change, ZEVError &error)
    {
        return change.isCopy ? m_manager.copyItemAtURL(change.source, change.destination, &error)
                             : m_manager.moveItemAtURL(change.source, change.destination, &error);
    }

    void perform(FileChange change)
    {
        ZEVError error;
        if (change.isTrashed)
            return trash(change);
        change.madeFolder = makeFolders(pathOf(change.destination).parent_path());
        if (bring(change, error))
            note(change);
        else if (ZEVErrorFileErrorHelpers::ZEV_isFileWriteFileExistsError(error))
            resolve(change, error);
        else if (!m_batch->m_isCancelled)
            m_result.errors.append(error);
        removeFolders(change); // that were made for nothing
    }

    void trash(FileChange change)
    {
        change.destination = trashed(change.source);
        if (change.destination.isValid())
            note(change);
        else
            m_result.errors.append(
                ZEVFileErrors::error(ENOTSUP, ZEVFileErrors::Operation::Change, change.source));
    }

    void resolve(FileChange change, const ZEVError &conflict)
    {
        const auto answer = m_manager.userRequestedRecoveryForFileExistsError(conflict, m_number < m_count);
        m_result.isStopped = answer == ZEVFileExistsRecoveryNone;
        m_result.skipped += answer == ZEVFileExistsRecoverySkip;
        if (answer == ZEVFileExistsRecoveryReplace)
            change.replaced = trashed(change.destination);
        const bool isFree = change.replaced.isValid();
        ZEVError error = conflict;
        if (isFree ? bring(change, error) : follow(answer, change, error))
            note(change);
        else if (answer == ZEVFileExistsRecoveryKeepBoth || answer == ZEVFileExistsRecoveryReplace)
            m_result.errors.append(error);
        if (isFree && !QFileInfo::exists(change.destination.toLocalFile()))
            restore(change);
    }

    bool follow(unsigned answer, FileChange &change, ZEVError &error)
    {
        const ZEVError conflict = error;
        ZEVError failure;
        bool isDone = false;
        if (answer == ZEVFileExistsRecoveryKeepBoth)
            isDone = m_manager.attemptRecoveryFromFileExistsErrorByFindingUniqueNameAtURL(
                conflict, change.destination, change.source, &failure);
        if (answer == ZEVFileExistsRecoveryReplace)
            isDone = m_manager.attemptRecoveryFromFileExistsErrorByReplacingItemAtURL(
                conflict, change.destination, change.source, &failure);
        error = ZEVFileErrors::withErrorBeneath(conflict, failure);
        return isDone;
    }

    void note(const FileChange &change)
    {
        m_batch->m_journal.append(change);
        m_result.done.append(change);
    }

    /// Nothing is overwritten, and a copy that may have been changed since goes where it can be found.
    void takeBack(const FileChange &change)
    {
        ZEVError error = ZEVFileErrors::error(ENOTSUP, ZEVFileErrors::Operation::Change, change.destination);
        const bool isBack = change.isCopy
            ? trashed(change.destination).isValid()
            : m_manager.moveItemAtURL(change.destination, change.source, &error);
        if (!isBack) {
            m_result.errors.append(error);
            m_left.append(change);
            return;
        }
        FileChange back{change.destination, change.source, {}, change.isCopy};
        back.isTrashed = change.isTrashed;
        m_result.done.append(back);
        removeFolders(change);
        if (change.isTrashed)
            forgetTrashed(change.destination);
        if (change.replaced.isValid())
            restore(change);
    }

    /// What was replaced comes out of the trash again.
    void restore(const FileChange &change)
    {
        if (m_manager.moveItemAtURL(change.replaced, change.destination))
            forgetTrashed(change.replaced);
    }

    FileBatch *m_batch;
    ZEVFileManager &m_manager;
    Result m_result;
    QList<FileChange> m_left; ///< that could not be taken back, the last one first
    QList<qint64> m_sizes;
    qint64 m_bytes = 0;
    qint64 m_bytesBefore = 0;
    qsizetype m_count = 0;
    qsizetype m_number = 0;
    int m_percent = -1;
    QString m_name;
};

FileBatch::FileBatch(const FileJournal &journal, QObject *parent)
    : QObject(parent)
    , m_journal(journal)
{
    m_manager.setShowsConflictDetails(true, describeSong);
}

FileBatch::~FileBatch() { cancelAndWait(); }

void FileBatch::cancelAndWait()
{
    cancel();
    while (m_isRunning)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void FileBatch::start(const std::function<Result(Worker &)> &work)
{
    if (std::exchange(m_isRunning, true))
        return;
    m_isCancelled = false;
    m_manager.setAppliedToAllRecovery(ZEVFileExistsRecoveryNone);
    m_thread = std::jthread([this, work] {
        Worker worker(this);
        const Result result = work(worker);
        QMetaObject::invokeMethod(this, [this, result] {
            m_isRunning = false;
            Q_EMIT finished(result);
        });
    });
}

void FileBatch::run(const QList<FileChange> &changes)
{
    if (m_isRunning)
        return;
    m_journal.begin();
    start([changes = inOrder(changes)](Worker &worker) { return worker.run(changes); });
}

void FileBatch::undo() { undo(m_journal.changes()); }

void FileBatch::undo(const QList<FileChange> &changes)
{
    start([changes](Worker &worker) { return worker.undo(changes); });
}
