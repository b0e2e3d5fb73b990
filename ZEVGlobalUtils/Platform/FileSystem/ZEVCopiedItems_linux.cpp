// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVCopiedItems_p.h>

#include <cerrno>

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

qint64 nanoseconds(const timespec &time) { return time.tv_sec * NanosecondsPerSecond + time.tv_nsec; }

} // namespace

/// Of a folder, only what lies in it counts: its size and times are those of its list.
ZEVCopiedItems::Stamp ZEVCopiedItems::stampOf(const struct stat &status)
{
    Stamp stamp{status.st_dev, status.st_ino, mode_t(status.st_mode & S_IFMT), 0, 0, 0};
    if (S_ISDIR(status.st_mode))
        return stamp;
    stamp.size = status.st_size;
    stamp.modified = nanoseconds(status.st_mtim);
    stamp.changed = nanoseconds(status.st_ctim);
    return stamp;
}

void ZEVCopiedItems::add(const QByteArray &name, const struct stat &status)
{
    m_stamps.insert(name, stampOf(status));
}

int ZEVCopiedItems::compare(const ZEVEntry &entry, Compare compare, QByteArray &changed) const
{
    changed.clear();
    struct stat status { };
    if (const int error = entry.readStatus(status))
        return error;
    Stamp now = stampOf(status);
    const Stamp copied = m_stamps.value(QByteArray(""));
    if (compare == Compare::NotTimeOfChange)
        now.changed = copied.changed;
    if (now != copied)
        return EBUSY;
    return S_ISDIR(status.st_mode) ? compareWithin(entry, changed) : 0;
}

/// The removal of another name of the item changes the time of its last change.
bool ZEVCopiedItems::hasBytesOf(const QByteArray &name, const struct stat &status) const
{
    Stamp now = stampOf(status);
    const auto copied = m_stamps.constFind(name);
    if (copied == m_stamps.constEnd())
        return false;
    now.changed = copied->changed;
    return now == *copied;
}

/// \a name is that of the folder, and becomes that of the item that has changed.
int ZEVCopiedItems::compareWithin(const ZEVEntry &folder, QByteArray &name) const
{
    const ZEVDescriptor open = ZEVPlaces::openFolder(folder);
    QByteArrayList names;
    if (!open)
        return errno;
    if (const int error = ZEVPlaces::readNames(open.get(), names))
        return error;
    const qsizetype length = name.size();
    for (const QByteArray &inner : std::as_const(names)) {
        name += '/' + inner;
        const ZEVEntry entry{open.get(), inner};
        struct stat status { };
        int error = entry.readStatus(status);
        const auto copied = m_stamps.constFind(name);
        if (!error && (copied == m_stamps.constEnd() || *copied != stampOf(status)))
            error = EBUSY;
        if (!error && S_ISDIR(status.st_mode))
            error = compareWithin(entry, name);
        if (error && error != ENOENT)
            return error;
        name.truncate(length);
    }
    return 0;
}
