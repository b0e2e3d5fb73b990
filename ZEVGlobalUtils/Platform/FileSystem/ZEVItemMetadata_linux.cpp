// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QtEndian>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr const char *AccessList = "system.posix_acl_access";
constexpr const char *DefaultList = "system.posix_acl_default";

/// Asks \a read for a size, then for that many bytes, and again where there are more of them by then.
int readWhole(QByteArray &bytes, const auto &read)
{
    bytes.clear();
    for (;;) {
        const ssize_t size = read(bytes.data(), size_t(bytes.size()));
        if (size < 0 && errno != ERANGE)
            return errno;
        if (size >= 0 && size <= bytes.size()) {
            bytes.truncate(size);
            return 0;
        }
        bytes.resize(size < 0 ? read(nullptr, 0) : size);
    }
}

/// A file system that does not have something, or has it for its owner alone.
bool isRefusal(int error)
{
    return error == EPERM || error == EOPNOTSUPP || error == ENOSYS; // ENOTSUP is the second one's other name
}

/// Also told as a full disk, where the disk is not full.
bool isTooLarge(int error, int target)
{
    struct statvfs volume { };
    const bool isFull = fstatvfs(target, &volume) == 0 && volume.f_bavail == 0;
    return error == E2BIG || error == ERANGE || (error == ENOSPC && !isFull);
}

/// What the list of an item gives to its group, in the place of which the mode shows what it gives to anyone
/// but the owner at most (POSIX 1003.1e, as Linux stores it: a version, then tag, permissions and id).
mode_t groupOf(const QByteArray &list)
{
    constexpr quint16 GroupTag = 0x04, MaskTag = 0x10;
    constexpr qsizetype HeaderSize = 4, EntrySize = 8;
    quint16 group = 7;
    for (qsizetype begin = HeaderSize; begin + EntrySize <= list.size(); begin += EntrySize) {
        const quint16 tag = qFromLittleEndian<quint16>(list.constData() + begin);
        const quint16 permissions = qFromLittleEndian<quint16>(list.constData() + begin + sizeof tag);
        if (tag == GroupTag || tag == MaskTag)
            group &= permissions;
    }
    return mode_t(group) << 3;
}

} // namespace

int ZEVItemCopying::leftOut(int error)
{
    if (!isRefusal(error))
        return error;
    if (!std::exchange(m_hasLeftOut, true))
        qCWarning(zevLog).noquote() << "The volume does not keep all of an item:" << m_path;
    return 0;
}

int ZEVItemCopying::copyAttribute(int source, int target, const QByteArray &name, mode_t &mode)
{
    QByteArray value;
    const int error = readWhole(value, [&](char *bytes, size_t size) {
        return fgetxattr(source, name.constData(), size > 0 ? bytes : nullptr, size);
    });
    if (error)
        return error == ENODATA ? 0 : leftOut(error); // taken away meanwhile
    const int failure =
        ZEVPlaces::errnoOf(fsetxattr(target, name.constData(), value.constData(), size_t(value.size()), 0));
    if (isRefusal(failure) && name == AccessList)
        mode &= ~mode_t(S_IRWXG) | groupOf(value);
    if (!isTooLarge(failure, target))
        return leftOut(failure);
    const bool mayGoOn = m_handling.mayLeaveOutAttributes && m_handling.mayLeaveOutAttributes(m_path);
    return mayGoOn ? 0 : because(Reason::Attributes, E2BIG);
}

/// Whoever may not write a file may not set its attributes either, and a list may forbid it: lists come last.
int ZEVItemCopying::copyAttributes(int source, int target, mode_t &mode)
{
    QByteArray names;
    const int error = readWhole(names, [&](char *bytes, size_t size) {
        return flistxattr(source, size > 0 ? bytes : nullptr, size);
    });
    if (error)
        return leftOut(error);
    for (const char *group : {"user.", "system.posix_acl_"}) {
        for (const QByteArray &name : names.split('\0')) {
            const int failure = name.startsWith(group) ? copyAttribute(source, target, name, mode) : 0;
            if (failure)
                return failure;
        }
    }
    return 0;
}

/// The mode that remains: without the owner, a program must not run with the rights of another one.
mode_t ZEVItemCopying::giveAway(const ZEVEntry &target, const struct stat &status) const
{
    const bool isGiven = m_owner == Owner::Source
        && fchownat(target.folder, target.name.constData(), status.st_uid, status.st_gid,
                    AT_SYMLINK_NOFOLLOW | AT_EMPTY_PATH)
            == 0;
    const bool isOurs = status.st_uid == geteuid() && status.st_gid == getegid();
    return isGiven || isOurs ? status.st_mode & 07777 : status.st_mode & 01777;
}

/// The lists that a new item inherits from its folder are none of the source's. The mode comes last: it says
/// again what the lists say of it, and without the right to write nothing else could be set.
int ZEVItemCopying::copyMetadata(int source, int target, const struct stat &status)
{
    for (const char *inherited : {AccessList, DefaultList})
        fremovexattr(target, inherited);
    mode_t mode = giveAway({target, QByteArray("")}, status);
    if (const int error = copyAttributes(source, target, mode))
        return error;
    if (const int error = setMode(target, mode))
        return error;
    const std::array times{status.st_atim, status.st_mtim};
    return leftOut(ZEVPlaces::errnoOf(futimens(target, times.data())));
}

int ZEVItemCopying::setMode(int target, mode_t mode)
{
    constexpr mode_t Others = S_IRGRP | S_IROTH;
    const int error = ZEVPlaces::errnoOf(fchmod(target, mode));
    struct stat status { };
    if (isRefusal(error) && fstat(target, &status) == 0 && (status.st_mode & Others & ~mode))
        return because(Reason::Readable, error);
    return leftOut(error);
}

int ZEVItemCopying::setTimes(const ZEVEntry &target, const struct stat &status)
{
    const std::array times{status.st_atim, status.st_mtim};
    return leftOut(ZEVPlaces::errnoOf(
        utimensat(target.folder, target.name.constData(), times.data(), AT_SYMLINK_NOFOLLOW)));
}

int ZEVItemCopying::copyLink(const ZEVEntry &source, const ZEVEntry &target, const struct stat &status)
{
    QByteArray path(std::max<qint64>(status.st_size, 4095) + 1, '\0');
    const ssize_t size = readlinkat(source.folder, source.name.constData(), path.data(), size_t(path.size()));
    if (size < 0)
        return errno;
    if (size == path.size())
        return ENAMETOOLONG;
    path.truncate(size);
    if (symlinkat(path.constData(), target.folder, target.name.constData()) < 0)
        return isRefusal(errno) ? because(Reason::NotHeld, errno) : notMade(errno);
    giveAway(target, status);
    return setTimes(target, status);
}

int ZEVItemCopying::copyPipe(const ZEVEntry &target, const struct stat &status)
{
    if (mkfifoat(target.folder, target.name.constData(), S_IRUSR | S_IWUSR) < 0)
        return isRefusal(errno) ? because(Reason::NotHeld, errno) : notMade(errno);
    const mode_t mode = giveAway(target, status);
    const int error = ZEVPlaces::errnoOf(fchmodat(target.folder, target.name.constData(), mode, 0));
    return leftOut(error) ? error : setTimes(target, status);
}
