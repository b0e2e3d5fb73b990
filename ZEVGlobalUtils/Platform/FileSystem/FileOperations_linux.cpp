// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ZEVItemRenaming;
using Owner = ZEVItemCopying::Owner;

/// Walks up from the folder of \a inner.
bool liesWithin(const ZEVEntry &inner, const struct stat &outer)
{
    ZEVDescriptor folder(openat(inner.folder, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat status { };
    while (folder && fstat(folder.get(), &status) == 0) {
        if (ZEVPlaces::isSameItem(status, outer))
            return true;
        const struct stat below = status;
        folder = ZEVDescriptor(openat(folder.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!folder || fstat(folder.get(), &status) < 0 || ZEVPlaces::isSameItem(status, below))
            return false; // the root is its own parent
    }
    return false;
}

/// What forbids to bring \a source to \a destination, before anything is done.
int obstacle(const ZEVEntry &source, const ZEVEntry &destination)
{
    struct stat status { };
    if (const int error = source.readStatus(status))
        return error;
    if (S_ISDIR(status.st_mode) && liesWithin(destination, status))
        return EINVAL;
    return destination.checkIsFree();
}

/// Copies under another name beside \a destination, then lets \a finish put it in its place.
int copyBeside(const ZEVEntry &source, const ZEVEntry &destination,
               const ZEVFileOperations::Progress &progress, Owner owner, const auto &finish)
{
    const ZEVEntry temporary = destination.sibling(ZEVPlaces::temporaryName());
    int error = ZEVItemCopying(progress, owner).copy(source, temporary);
    if (!error)
        error = finish(temporary);
    if (error)
        remove(temporary, Force::MakeWritable);
    return error;
}

int removeMoved(const ZEVEntry &source, const ZEVEntry &destination)
{
    qint64 removed = 0;
    const int error = remove(source, Force::None, &removed);
    if (error && removed == 0)
        remove(destination, Force::MakeWritable);
    return error;
}

bool mayRemove(const ZEVEntry &entry)
{
    const bool isWritable = faccessat(entry.folder, ".", W_OK | X_OK, AT_EACCESS) == 0;
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(entry.folder) + '/' + entry.name;
    return isWritable && !ZEVFileOperations::isImmutable(path);
}

/// The copy is on the disk before its source is touched.
int moveToOtherVolume(const ZEVEntry &source, const ZEVEntry &destination,
                      const ZEVFileOperations::Progress &progress)
{
    if (!mayRemove(source))
        return EACCES;
    const int error =
        copyBeside(source, destination, progress, Owner::Source, [&](const ZEVEntry &temporary) {
            const int failure = synchronize(temporary);
            return failure ? failure : renameWithoutReplacing(temporary, destination);
        });
    if (error)
        return error;
    synchronizeFolder(destination);
    return removeMoved(source, destination);
}

int firstError(const ZEVPlace &one, const ZEVPlace &other)
{
    return one.error() ? one.error() : other.error();
}

int writeFile(const ZEVEntry &entry, const QByteArray &contents)
{
    ZEVDescriptor file(openat(entry.folder, entry.name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                              0666)); // less what umask takes
    if (!file)
        return errno;
    for (qsizetype begin = 0; begin < contents.size();) {
        const ssize_t written =
            write(file.get(), contents.constData() + begin, size_t(contents.size() - begin));
        if (written < 0 && errno != EINTR)
            return errno;
        begin += std::max<ssize_t>(written, 0);
    }
    return file.close();
}

int makeFolder(const QByteArray &path)
{
    return ZEVPlaces::errnoOf(mkdir(path.constData(), 0777)); // less what umask takes
}

} // namespace

int ZEVFileOperations::copyItem(const QByteArray &source, const QByteArray &destination,
                                const Progress &progress)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    if (const int error = firstError(from, to))
        return error;
    if (const int error = obstacle(from.entry(), to.entry()))
        return error;
    return copyBeside(from.entry(), to.entry(), progress, Owner::Process, [&](const ZEVEntry &temporary) {
        return renameWithoutReplacing(temporary, to.entry());
    });
}

int ZEVFileOperations::moveItem(const QByteArray &source, const QByteArray &destination,
                                const Progress &progress)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    if (const int error = firstError(from, to))
        return error;
    const int error = obstacle(from.entry(), to.entry());
    if (error == EEXIST && from.entry().name != to.entry().name && isSameName(from.entry(), to.entry()))
        return ZEVPlaces::errnoOf(renameat(from.entry().folder, from.entry().name.constData(),
                                           to.entry().folder, to.entry().name.constData()));
    if (error)
        return error;
    const int failure = renameWithoutReplacing(from.entry(), to.entry());
    return failure == EXDEV ? moveToOtherVolume(from.entry(), to.entry(), progress) : failure;
}

int ZEVFileOperations::replaceItem(const QByteArray &item, const QByteArray &replacement)
{
    const ZEVPlace to(item);
    const ZEVPlace from(replacement);
    const int error = firstError(to, from);
    return error ? error : replace(to.entry(), from.entry());
}

int ZEVFileOperations::removeItem(const QByteArray &path)
{
    const ZEVPlace place(path);
    return place.error() ? place.error() : remove(place.entry(), Force::None);
}

int ZEVFileOperations::createDirectory(const QByteArray &path, bool withIntermediateDirectories)
{
    int error = makeFolder(path);
    const qsizetype slash = path.lastIndexOf('/');
    if (error == ENOENT && withIntermediateDirectories && slash > 0) {
        error = createDirectory(path.first(slash), true);
        error = error ? error : makeFolder(path);
    }
    const bool isThere =
        error == EEXIST && withIntermediateDirectories && status(path) && status(path)->isDirectory;
    return isThere ? 0 : error;
}

int ZEVFileOperations::createTemporaryDirectory(const QByteArray &path, QByteArray &created)
{
    created = path.first(path.lastIndexOf('/') + 1) + ZEVPlaces::temporaryName();
    return ZEVPlaces::errnoOf(mkdir(created.constData(), S_IRWXU));
}

int ZEVFileOperations::createFile(const QByteArray &path, const QByteArray &contents)
{
    const ZEVPlace place(path);
    if (place.error())
        return place.error();
    if (const int error = place.entry().checkIsFree()) // saves writing it all; the renaming decides
        return error;
    const ZEVEntry temporary = place.entry().sibling(ZEVPlaces::temporaryName());
    int error = writeFile(temporary, contents);
    if (!error)
        error = renameWithoutReplacing(temporary, place.entry());
    if (error)
        remove(temporary, Force::None);
    return error;
}

bool ZEVFileOperations::mayRemove(const QByteArray &path)
{
    const ZEVPlace place(path);
    return place.error() == 0 && ::mayRemove(place.entry());
}
