// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

/// Not so for "." and "..", which name another item than the one they are the end of.
bool isName(const QByteArray &name) { return !name.isEmpty() && name != "." && name != ".."; }

} // namespace

ZEVDescriptor::~ZEVDescriptor() { close(); }

int ZEVDescriptor::close()
{
    const int descriptor = std::exchange(m_descriptor, -1);
    return descriptor < 0 ? 0 : ZEVPlaces::errnoOf(::close(descriptor));
}

int ZEVEntry::readStatus(struct stat &status) const
{
    return ZEVPlaces::errnoOf(fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW));
}

int ZEVEntry::checkIsFree() const
{
    struct stat status { };
    const int error = readStatus(status);
    if (error == ENOENT)
        return 0;
    return error ? error : EEXIST;
}

ZEVPlace::ZEVPlace(const QByteArray &path)
    : m_path(path)
{
    const qsizetype slash = path.lastIndexOf('/');
    m_name = path.sliced(slash + 1);
    if (slash < 0 || !isName(m_name)) {
        m_error = EINVAL;
        return;
    }
    m_folder = ZEVDescriptor(open(folderPath().constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    m_error = m_folder ? 0 : errno;
}

QByteArray ZEVPlace::folderPath() const
{
    return m_path.first(std::max<qsizetype>(m_path.lastIndexOf('/'), 1));
}

ZEVDescriptor ZEVPlaces::openFolder(const ZEVEntry &entry)
{
    return ZEVDescriptor(
        openat(entry.folder, entry.name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

int ZEVPlaces::readNames(int folder, QByteArrayList &names)
{
    const int again = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR *)> listing(again < 0 ? nullptr : fdopendir(again), closedir);
    if (!listing)
        return errno;
    for (;;) {
        errno = 0;
        const dirent *entry = readdir(listing.get());
        if (!entry)
            return errno;
        if (const QByteArray name(entry->d_name); isName(name))
            names.append(name);
    }
}

int ZEVPlaces::errnoOf(int result) { return result < 0 ? errno : 0; }

bool ZEVPlaces::isSameItem(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool ZEVPlaces::isSameFolder(const ZEVEntry &one, const ZEVEntry &other)
{
    struct stat first { };
    struct stat second { };
    return fstat(one.folder, &first) == 0 && fstat(other.folder, &second) == 0 && isSameItem(first, second);
}
