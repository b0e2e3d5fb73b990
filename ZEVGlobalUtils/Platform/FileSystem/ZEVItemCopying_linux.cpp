// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>

#include <QThread>

#include <cerrno>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// What stands there now: between the look at it and the opening another item may have taken its name.
int openFile(const ZEVEntry &entry, ZEVDescriptor &file, struct stat &status)
{
    file = ZEVDescriptor(
        openat(entry.folder, entry.name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file || fstat(file.get(), &status) < 0)
        return errno;
    return S_ISREG(status.st_mode) ? 0 : ENOTSUP;
}

/// A file that changes twice within one tick of its file system's clock does not tell of the second time, so
/// that what was changed in this tick is looked at in the next one.
int awaitNextTick(int file, struct stat &status)
{
    using namespace std::chrono;
    const auto tick = status.st_ctim.tv_nsec == 0 ? nanoseconds(2100ms) : nanoseconds(20ms);
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const auto age =
        seconds(now.tv_sec - status.st_ctim.tv_sec) + nanoseconds(now.tv_nsec - status.st_ctim.tv_nsec);
    if (age < 0ns || age > tick)
        return 0;
    QThread::usleep(ulong(duration_cast<microseconds>(tick - age).count()));
    return ZEVPlaces::errnoOf(fstat(file, &status));
}

} // namespace

ZEVFileFailure ZEVItemCopying::copy(const ZEVEntry &source, const ZEVEntry &target)
{
    m_path = m_sourcePath;
    m_target = target;
    const int error = copyItem(source, target);
    if (m_reason == Reason::Within && m_path == m_sourcePath)
        return error;
    const QByteArray folder = m_targetPath.first(std::max<qsizetype>(m_targetPath.lastIndexOf('/'), 1));
    return {error, m_reason, m_reason == Reason::Folder ? folder : m_path};
}

int ZEVItemCopying::because(Reason reason, int error)
{
    m_reason = reason;
    return error;
}

/// The item's own name is the destination's by then, so that only those within can be unfit or clash.
int ZEVItemCopying::notMade(int error)
{
    if (m_path == m_sourcePath)
        return error == EACCES || error == EPERM || error == ENOENT ? because(Reason::Folder, error) : error;
    switch (error) {
    case EEXIST:
        return because(Reason::Clash, error);
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
        return because(Reason::Name, error);
    default:
        return error;
    }
}

void ZEVItemCopying::record(const struct stat &status)
{
    if (m_owner == Owner::Source)
        m_copied.add(nameWithin(), status);
}

int ZEVItemCopying::copyItem(const ZEVEntry &source, const ZEVEntry &target)
{
    struct stat status { };
    if (const int error = source.readStatus(status))
        return error;
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        record(status);
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(source, target);
    case S_IFDIR:
        return copyFolder(source, target);
    case S_IFLNK:
        return linkToCopy(target, status) ? 0 : copyLink(source, target, status);
    case S_IFIFO:
        return linkToCopy(target, status) ? 0 : copyPipe(target, status);
    default:
        return because(Reason::Kind, ENOTSUP);
    }
}

int ZEVItemCopying::copyFile(const ZEVEntry &source, const ZEVEntry &target)
{
    ZEVDescriptor from;
    struct stat status { };
    if (const int error = openFile(source, from, status))
        return error;
    if (m_owner == Owner::Source) {
        if (const int error = awaitNextTick(from.get(), status))
            return error;
    }
    record(status);
    if (linkToCopy(target, status))
        return 0;
    ZEVDescriptor to(openat(target.folder, target.name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                            S_IRUSR | S_IWUSR));
    if (!to)
        return notMade(errno);
    if (const int error = copyData(from.get(), to.get(), status))
        return error;
    if (const int error = copyMetadata(from.get(), to.get(), status))
        return error;
    return to.close();
}

/// Several names of one item in a folder become names of one copy. Where that fails it is copied once more.
bool ZEVItemCopying::linkToCopy(const ZEVEntry &target, const struct stat &status)
{
    if (status.st_nlink < 2 || m_path == m_sourcePath)
        return false;
    const QByteArray first = m_linked.value({status.st_dev, status.st_ino});
    const QByteArray path = m_target.name + first;
    if (!first.isNull()
        && linkat(m_target.folder, path.constData(), target.folder, target.name.constData(), 0) == 0)
        return true;
    m_linked.insert({status.st_dev, status.st_ino}, nameWithin());
    return false;
}

/// Its metadata comes last, since every item that is made within changes its time, and it may be read-only.
int ZEVItemCopying::copyFolder(const ZEVEntry &source, const ZEVEntry &target)
{
    const ZEVDescriptor from = ZEVPlaces::openFolder(source);
    struct stat status { };
    if (!from || fstat(from.get(), &status) < 0)
        return errno;
    record(status);
    if (mkdirat(target.folder, target.name.constData(), S_IRWXU) < 0)
        return notMade(errno);
    const ZEVDescriptor to = ZEVPlaces::openFolder(target);
    if (!to)
        return errno;
    if (const int error = copyContents(from.get(), to.get()))
        return error;
    return copyMetadata(from.get(), to.get(), status);
}

int ZEVItemCopying::copyContents(int source, int target)
{
    QByteArrayList names;
    if (const int error = ZEVPlaces::readNames(source, names))
        return error;
    const qsizetype length = m_path.size();
    for (const QByteArray &name : names) {
        if (!goesOn(0))
            return ECANCELED;
        m_path += '/' + name;
        if (const int error = copyItem({source, name}, {target, name}))
            return error; // the path stays that of the item
        m_path.truncate(length);
    }
    return 0;
}
