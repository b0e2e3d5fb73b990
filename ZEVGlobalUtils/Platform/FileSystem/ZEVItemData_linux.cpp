// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <vector>

namespace {

/// Bytes between two looks at whether to go on: about a hundredth of a second on a slow disk.
constexpr qint64 Step = 8 << 20;
constexpr size_t BufferSize = 256 << 10;
constexpr qint64 BlockSize = 512; ///< the unit of st_blocks, whatever the file system's is

/// What says that there is another way, rather than that the disk is full or broken.
bool meansUnsupported(int error)
{
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM
        || error == EBADF || error == ETXTBSY;
}

int writeAll(int target, const char *bytes, size_t size, qint64 offset)
{
    while (size > 0) {
        const ssize_t written = pwrite(target, bytes, size, offset);
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0) {
            bytes += written;
            size -= size_t(written);
            offset += written;
        }
    }
    return 0;
}

} // namespace

bool ZEVItemCopying::goesOn(qint64 bytes)
{
    m_bytes += bytes;
    return !m_handling.progress || m_handling.progress(m_bytes);
}

int ZEVItemCopying::copyData(int source, int target, const struct stat &status)
{
    if (m_mayClone && ioctl(target, FICLONE, source) == 0)
        return goesOn(status.st_size) ? 0 : ECANCELED;
    m_mayClone = false;
    if (status.st_blocks * BlockSize < status.st_size)
        return copyExtents(source, target, status.st_size);
    return copyRange(source, target, 0, std::numeric_limits<qint64>::max());
}

/// Only what is not a hole. A file may say that it is longer than what can be read of it.
int ZEVItemCopying::copyExtents(int source, int target, qint64 size)
{
    m_isAtEnd = false;
    qint64 end = 0;
    while (end < size && !m_isAtEnd) {
        const qint64 begin = lseek(source, end, SEEK_DATA);
        if (begin < 0 && errno == ENXIO)
            return copyHole(source, target, size);
        end = begin < 0 ? -1 : lseek(source, begin, SEEK_HOLE);
        if (end < 0)
            return errno == EINVAL ? copyRange(source, target, 0, std::numeric_limits<qint64>::max()) : errno;
        if (const int error = copyRange(source, target, begin, end))
            return error;
    }
    return 0;
}

/// Up to the end, if there is one.
int ZEVItemCopying::copyHole(int source, int target, qint64 size)
{
    char last = 0;
    const ssize_t read = pread(source, &last, 1, size - 1);
    if (read < 0)
        return errno;
    return read == 0 ? 0 : ZEVPlaces::errnoOf(ftruncate(target, size));
}

/// Up to the end of the file where that comes first.
int ZEVItemCopying::copyRange(int source, int target, qint64 begin, qint64 end)
{
    while (begin < end) {
        loff_t from = begin;
        loff_t to = begin;
        const ssize_t copied =
            copy_file_range(source, &from, target, &to, size_t(std::min(end - begin, Step)), 0);
        if (copied < 0 && errno == EINTR)
            continue;
        if (copied < 0 && !meansUnsupported(errno))
            return errno;
        if (copied <= 0) // some file systems say 0 for files that they make up as they are read
            return copyByReading(source, target, begin, end);
        begin += copied;
        if (!goesOn(copied))
            return ECANCELED;
    }
    return 0;
}

int ZEVItemCopying::copyByReading(int source, int target, qint64 begin, qint64 end)
{
    static thread_local std::vector<char> buffer(BufferSize);
    while (begin < end) {
        const size_t wanted = std::min(size_t(end - begin), buffer.size());
        const ssize_t read = pread(source, buffer.data(), wanted, begin);
        if (read < 0 && errno == EINTR)
            continue;
        m_isAtEnd = read == 0;
        if (read <= 0)
            return ZEVPlaces::errnoOf(int(read));
        if (const int error = writeAll(target, buffer.data(), size_t(read), begin))
            return error;
        begin += read;
        if (!goesOn(read))
            return ECANCELED;
    }
    return 0;
}
