// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>

#include <QString>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

using ZEVPlaces::errnoOf;

int renameWith(unsigned flags, const ZEVEntry &from, const ZEVEntry &to)
{
    return errnoOf(renameat2(from.folder, from.name.constData(), to.folder, to.name.constData(), flags));
}

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

/// A folder of this name could be taken without harm, as it would have to be empty.
int renameWhereFree(const ZEVEntry &from, const ZEVEntry &to)
{
    const int error = to.checkIsFree();
    return error ? error : ZEVItemRenaming::rename(from, to);
}

/// As file systems compare names that do not tell upper from lower case.
QString folded(const QByteArray &name)
{
    return QString::fromUtf8(name).normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

int ZEVItemRenaming::rename(const ZEVEntry &from, const ZEVEntry &to)
{
    return errnoOf(renameat(from.folder, from.name.constData(), to.folder, to.name.constData()));
}

int ZEVItemRenaming::exchange(const ZEVEntry &one, const ZEVEntry &other)
{
    return renameWith(RENAME_EXCHANGE, one, other);
}

bool ZEVItemRenaming::meansUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

int ZEVItemRenaming::renameWithoutReplacing(const ZEVEntry &from, const ZEVEntry &to)
{
    int error = renameWith(RENAME_NOREPLACE, from, to);
    if (!meansUnsupported(error))
        return error;
    error = isFolder(from) ? EPERM : renameByLinking(from, to);
    // No links on this file system, or to this kind of item.
    return error == EPERM || error == EMLINK || meansUnsupported(error) ? renameWhereFree(from, to) : error;
}

/// Told from two links of one item by the list of the folder, which holds one of the names only. Inodes do
/// not tell: some file systems make up a number for every name.
bool ZEVItemRenaming::isSameName(const ZEVEntry &one, const ZEVEntry &other)
{
    struct stat status { };
    QByteArrayList names;
    return one.name != other.name && folded(one.name) == folded(other.name)
        && ZEVPlaces::isSameFolder(one, other) && one.readStatus(status) == 0 && other.readStatus(status) == 0
        && ZEVPlaces::readNames(one.folder, names) == 0
        && names.contains(one.name) != names.contains(other.name);
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
    const int error = errnoOf(S_ISDIR(status.st_mode) ? syncfs(item.get()) : fsync(item.get()));
    return meansUnsupported(error) ? 0 : error;
}

int ZEVItemRenaming::synchronizeFolder(const ZEVEntry &entry)
{
    const ZEVDescriptor folder = ZEVPlaces::openFolder({entry.folder, "."});
    if (!folder)
        return errno == EACCES ? 0 : errno;
    const int error = errnoOf(fsync(folder.get()));
    return meansUnsupported(error) ? 0 : error;
}
