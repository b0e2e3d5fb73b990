// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <memory>
#include <pwd.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace {

using ZEVPlaces::errnoOf;

constexpr const char *TagsName = "user.xdg.tags"; ///< of the desktops' common extended attributes
constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

/// Only these flags are the user's; the others belong to the file system.
constexpr int UserFlags = FS_IMMUTABLE_FL | FS_APPEND_FL | FS_NODUMP_FL;

std::optional<struct statx> extendedStatus(int folder, const char *path, int flags)
{
    struct statx status { };
    if (statx(folder, path, flags, STATX_BASIC_STATS | STATX_BTIME, &status) < 0)
        return std::nullopt;
    return status;
}

quint64 deviceOf(const struct statx &status)
{
    return quint64(status.stx_dev_major) << 32 | status.stx_dev_minor;
}

ZEVFileOperations::Status statusFrom(const struct statx &status)
{
    const bool hasBirth = (status.stx_mask & STATX_BTIME) != 0;
    return {S_ISDIR(status.stx_mode), deviceOf(status), status.stx_ino,
            hasBirth ? status.stx_btime.tv_sec * NanosecondsPerSecond + status.stx_btime.tv_nsec : 0};
}

bool isSame(const ZEVFileOperations::Status &one, const ZEVFileOperations::Status &other)
{
    return one.device == other.device && one.inode == other.inode && one.birthTime == other.birthTime;
}

QByteArray parentOf(const QByteArray &path)
{
    return path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

} // namespace

std::optional<ZEVFileOperations::Status> ZEVFileOperations::status(const QByteArray &path)
{
    const auto status = extendedStatus(AT_FDCWD, path.constData(), 0);
    return status ? std::optional(statusFrom(*status)) : std::nullopt;
}

QByteArray ZEVFileOperations::nameOfItem(const Status &identity, const QByteArray &folder)
{
    const ZEVDescriptor open(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    QByteArrayList names;
    if (!open || ZEVPlaces::readNames(open.get(), names))
        return {};
    for (const QByteArray &name : std::as_const(names)) {
        const auto status = extendedStatus(open.get(), name.constData(), AT_SYMLINK_NOFOLLOW);
        if (status && isSame(statusFrom(*status), identity))
            return name;
    }
    return {};
}

bool ZEVFileOperations::hasAccess(const QByteArray &path, Access access)
{
    return ::access(path.constData(), int(access)) == 0;
}

int ZEVFileOperations::setPermissions(const QByteArray &path, unsigned mode)
{
    return errnoOf(chmod(path.constData(), mode));
}

bool ZEVFileOperations::isImmutable(const QByteArray &path)
{
    const auto status = extendedStatus(AT_FDCWD, path.constData(), 0);
    return status && (status->stx_attributes & STATX_ATTR_IMMUTABLE) != 0;
}

bool ZEVFileOperations::isLink(const QByteArray &path)
{
    const auto status = extendedStatus(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW);
    return status && S_ISLNK(status->stx_mode);
}

int ZEVFileOperations::setImmutable(const QByteArray &path, bool immutable)
{
    const ZEVDescriptor file(open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    int flags = 0;
    if (!file)
        return errno;
    if (ioctl(file.get(), FS_IOC_GETFLAGS, &flags) < 0)
        return immutable || errno != ENOTTY ? errno : 0; // no flags here: nothing is locked
    const int wanted = (flags & ~UserFlags) | (immutable ? FS_IMMUTABLE_FL : 0);
    return wanted == flags ? 0 : errnoOf(ioctl(file.get(), FS_IOC_SETFLAGS, &wanted));
}

std::optional<QString> ZEVFileOperations::tags(const QByteArray &path)
{
    const ssize_t size = getxattr(path.constData(), TagsName, nullptr, 0);
    if (size < 0)
        return errno == ENODATA ? std::optional(QString()) : std::nullopt;
    QByteArray value(size, '\0');
    if (getxattr(path.constData(), TagsName, value.data(), size_t(size)) != size)
        return std::nullopt;
    return QString::fromUtf8(value);
}

int ZEVFileOperations::setTags(const QByteArray &path, const QString &tags)
{
    const QByteArray value = tags.toUtf8();
    if (!value.isEmpty())
        return errnoOf(setxattr(path.constData(), TagsName, value.constData(), size_t(value.size()), 0));
    const int error = errnoOf(removexattr(path.constData(), TagsName));
    return error == ENODATA ? 0 : error;
}

QByteArray ZEVFileOperations::resolvedPath(const QByteArray &path)
{
    std::error_code error;
    const auto resolved = std::filesystem::weakly_canonical(path.toStdString(), error);
    return error ? path : QByteArray::fromStdString(resolved.native());
}

QByteArray ZEVFileOperations::mountPoint(const QByteArray &path)
{
    QByteArray root = path;
    while (root.size() > 1 && !status(root))
        root = parentOf(root);
    const auto device = status(root);
    while (device && root.size() > 1) {
        const auto above = status(parentOf(root));
        if (!above || above->device != device->device)
            break;
        root = parentOf(root);
    }
    return root;
}

bool ZEVFileOperations::isSandboxed()
{
    return QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

QByteArray ZEVFileOperations::userName()
{
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd *found = nullptr;
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    return found ? QByteArray(entry.pw_name) : qgetenv("USER");
}
