// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>

#include <cerrno>
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

} // namespace

int ZEVItemCopying::copy(const ZEVEntry &source, const ZEVEntry &target)
{
    struct stat status { };
    if (const int error = source.readStatus(status))
        return error;
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(source, target);
    case S_IFDIR:
        return copyFolder(source, target);
    case S_IFLNK:
        return copyLink(source, target, status);
    case S_IFIFO:
        return copyPipe(target, status);
    default:
        return ENOTSUP;
    }
}

int ZEVItemCopying::copyFile(const ZEVEntry &source, const ZEVEntry &target)
{
    ZEVDescriptor from;
    struct stat status { };
    if (const int error = openFile(source, from, status))
        return error;
    ZEVDescriptor to(openat(target.folder, target.name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                            S_IRUSR | S_IWUSR));
    if (!to)
        return errno;
    if (const int error = copyData(from.get(), to.get(), status))
        return error;
    if (const int error = copyMetadata(from.get(), to.get(), status))
        return error;
    return to.close();
}

/// Its metadata comes last, since every item that is made within changes its time, and it may be read-only.
int ZEVItemCopying::copyFolder(const ZEVEntry &source, const ZEVEntry &target)
{
    const ZEVDescriptor from = ZEVPlaces::openFolder(source);
    struct stat status { };
    if (!from || fstat(from.get(), &status) < 0
        || mkdirat(target.folder, target.name.constData(), S_IRWXU) < 0)
        return errno;
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
    for (const QByteArray &name : names) {
        if (!goesOn(0))
            return ECANCELED;
        if (const int error = copy({source, name}, {target, name}))
            return error;
    }
    return 0;
}
