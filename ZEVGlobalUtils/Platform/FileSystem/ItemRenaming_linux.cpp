// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QString>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ZEVItemRenaming;
using ZEVPlaces::errnoOf;

int rename(const ZEVEntry &from, const ZEVEntry &to)
{
    return errnoOf(renameat(from.folder, from.name.constData(), to.folder, to.name.constData()));
}

int rename(const ZEVEntry &from, const ZEVEntry &to, unsigned flags)
{
    return errnoOf(renameat2(from.folder, from.name.constData(), to.folder, to.name.constData(), flags));
}

bool meansUnsupported(int error) { return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP; }

bool isFolder(const ZEVEntry &entry)
{
    struct stat status { };
    return entry.readStatus(status) == 0 && S_ISDIR(status.st_mode);
}

/// A second name, then no first: the second one is never taken from another item.
int renameByLinking(const ZEVEntry &from, const ZEVEntry &to)
{
    if (linkat(from.folder, from.name.constData(), to.folder, to.name.constData(), 0) < 0)
        return errno;
    const int error = errnoOf(unlinkat(from.folder, from.name.constData(), 0));
    if (error)
        unlinkat(to.folder, to.name.constData(), 0);
    return error;
}

/// An empty item takes the name, if nobody else has, and gives it up to the one that is renamed.
int renameOverPlaceholder(const ZEVEntry &from, const ZEVEntry &to)
{
    const bool folder = isFolder(from);
    if (folder && mkdirat(to.folder, to.name.constData(), S_IRWXU) < 0)
        return errno;
    if (!folder) {
        const ZEVDescriptor placeholder(openat(to.folder, to.name.constData(),
                                               O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (!placeholder)
            return errno;
    }
    const int error = rename(from, to);
    if (error)
        unlinkat(to.folder, to.name.constData(), folder ? AT_REMOVEDIR : 0);
    return error;
}

/// Without the right call for it the old item is moved aside first, so that for a moment there is none.
int exchangeInSteps(const ZEVEntry &to, const ZEVEntry &from)
{
    const ZEVEntry aside = to.sibling(ZEVPlaces::temporaryName());
    if (const int error = renameWithoutReplacing(to, aside))
        return error;
    if (const int error = renameWithoutReplacing(from, to)) {
        renameWithoutReplacing(aside, to);
        return error;
    }
    return renameWithoutReplacing(aside, from);
}

int exchange(const ZEVEntry &to, const ZEVEntry &from)
{
    const int error = rename(from, to, RENAME_EXCHANGE);
    return meansUnsupported(error) ? exchangeInSteps(to, from) : error;
}

/// What was replaced leaves the name of the other item at once, and then altogether. As long as all of it is
/// there, it can come back.
int discard(const ZEVEntry &replaced, const ZEVEntry &replacement)
{
    const ZEVEntry aside = replaced.sibling(ZEVPlaces::temporaryName());
    if (const int error = renameWithoutReplacing(replaced, aside))
        return exchange(replacement, replaced) == 0 ? error : 0;
    qint64 removed = 0;
    const int error = remove(aside, Force::MakeWritable, &removed);
    if (error && removed == 0 && exchange(replacement, aside) == 0)
        return renameWithoutReplacing(aside, replaced) == 0 ? error : 0;
    if (error)
        qCWarning(zevLog).noquote() << "Failed to remove all of a replaced item:" << aside.name;
    return 0;
}

/// Where a folder is concerned, no call replaces one item by another: they change places.
int replaceByExchange(const ZEVEntry &to, const ZEVEntry &from)
{
    const int error = exchange(to, from);
    return error ? error : discard(from, to);
}

/// Two names of one file would both stay if they were renamed, as POSIX has it.
int replaceItself(const ZEVEntry &to, const ZEVEntry &from)
{
    struct stat status { };
    if (const int error = to.readStatus(status))
        return error;
    if (from.folder == to.folder && from.name == to.name)
        return 0;
    return isSameName(to, from) ? rename(from, to) : errnoOf(unlinkat(from.folder, from.name.constData(), 0));
}

int put(const ZEVEntry &to, const ZEVEntry &from)
{
    struct stat old { };
    struct stat replacement { };
    if (const int error = from.readStatus(replacement))
        return error;
    const int error = to.readStatus(old);
    if (error == ENOENT)
        return renameWithoutReplacing(from, to);
    if (error)
        return error;
    if (ZEVPlaces::isSameItem(old, replacement))
        return replaceItself(to, from);
    const bool isSimple = !S_ISDIR(old.st_mode) && !S_ISDIR(replacement.st_mode);
    return isSimple ? rename(from, to) : replaceByExchange(to, from);
}

bool isSameFolder(const ZEVEntry &one, const ZEVEntry &other)
{
    struct stat first { };
    struct stat second { };
    return fstat(one.folder, &first) == 0 && fstat(other.folder, &second) == 0
        && ZEVPlaces::isSameItem(first, second);
}

} // namespace

int ZEVItemRenaming::renameWithoutReplacing(const ZEVEntry &from, const ZEVEntry &to)
{
    int error = rename(from, to, RENAME_NOREPLACE);
    if (!meansUnsupported(error))
        return error;
    error = isFolder(from) ? EPERM : renameByLinking(from, to);
    // No links on this file system, or to this kind of item.
    return error == EPERM || error == EMLINK || meansUnsupported(error) ? renameOverPlaceholder(from, to)
                                                                        : error;
}

bool ZEVItemRenaming::isSameName(const ZEVEntry &one, const ZEVEntry &other)
{
    const auto folded = [](const QByteArray &name) { return QString::fromUtf8(name).toCaseFolded(); };
    struct stat first { };
    struct stat second { };
    return folded(one.name) == folded(other.name) && isSameFolder(one, other) && one.readStatus(first) == 0
        && other.readStatus(second) == 0 && ZEVPlaces::isSameItem(first, second)
        && (S_ISDIR(first.st_mode) || first.st_nlink == 1);
}

int ZEVItemRenaming::replace(const ZEVEntry &to, const ZEVEntry &from)
{
    if (const int error = synchronize(from))
        return error;
    if (const int error = put(to, from))
        return error;
    // The item is in its place; a folder that cannot be written out is no reason to say that it is not.
    if (synchronizeFolder(to) || synchronizeFolder(from))
        qCWarning(zevLog) << "Failed to write out the folder of a replaced item";
    return 0;
}

int ZEVItemRenaming::synchronize(const ZEVEntry &entry)
{
    struct stat status { };
    if (const int error = entry.readStatus(status))
        return error;
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        return 0;
    const ZEVDescriptor item(
        openat(entry.folder, entry.name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!item) // without the right to read it, it is left to the system
        return errno == EACCES ? 0 : errno;
    return errnoOf(S_ISDIR(status.st_mode) ? syncfs(item.get()) : fsync(item.get()));
}

int ZEVItemRenaming::synchronizeFolder(const ZEVEntry &entry)
{
    const ZEVDescriptor folder = ZEVPlaces::openFolder({entry.folder, "."});
    if (!folder)
        return errno == EACCES ? 0 : errno;
    return errnoOf(fsync(folder.get()));
}
