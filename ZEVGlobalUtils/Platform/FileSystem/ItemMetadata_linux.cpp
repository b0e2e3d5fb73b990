// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

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

bool isUnsupported(int error) { return error == ENOTSUP; }

int copyOne(int source, int target, const QByteArray &name)
{
    QByteArray value;
    const int error = readWhole(value, [&](char *bytes, size_t size) {
        return fgetxattr(source, name.constData(), size > 0 ? bytes : nullptr, size);
    });
    if (error)
        return error == ENODATA ? 0 : error; // taken away meanwhile
    const int failure =
        ZEVPlaces::errnoOf(fsetxattr(target, name.constData(), value.constData(), size_t(value.size()), 0));
    return isUnsupported(failure) ? 0 : failure;
}

} // namespace

int ZEVExtendedAttributes::copy(int source, int target)
{
    QByteArray names;
    const int error = readWhole(names, [&](char *bytes, size_t size) {
        return flistxattr(source, size > 0 ? bytes : nullptr, size);
    });
    if (error)
        return isUnsupported(error) ? 0 : error;
    // Whoever may not write a file may not set its attributes either, and a list may forbid it.
    for (const char *group : {"user.", "system.posix_acl_"}) {
        for (const QByteArray &name : names.split('\0')) {
            const int failure = name.startsWith(group) ? copyOne(source, target, name) : 0;
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
    if (const int error = ZEVExtendedAttributes::copy(source, target))
        return error;
    const mode_t mode = giveAway({target, QByteArray("")}, status);
    if (const int error = ZEVPlaces::errnoOf(fchmod(target, mode)))
        return error;
    const std::array times{status.st_atim, status.st_mtim};
    return ZEVPlaces::errnoOf(futimens(target, times.data()));
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
        return errno;
    giveAway(target, status);
    const std::array times{status.st_atim, status.st_mtim};
    return ZEVPlaces::errnoOf(
        utimensat(target.folder, target.name.constData(), times.data(), AT_SYMLINK_NOFOLLOW));
}

int ZEVItemCopying::copyPipe(const ZEVEntry &target, const struct stat &status)
{
    if (mkfifoat(target.folder, target.name.constData(), S_IRUSR | S_IWUSR) < 0)
        return errno;
    const mode_t mode = giveAway(target, status);
    const std::array times{status.st_atim, status.st_mtim};
    if (fchmodat(target.folder, target.name.constData(), mode, 0) < 0)
        return errno;
    return ZEVPlaces::errnoOf(
        utimensat(target.folder, target.name.constData(), times.data(), AT_SYMLINK_NOFOLLOW));
}
