// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVRegularFile_p.h>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int problemOf(int file, qint64 largest)
{
    struct stat status { };
    if (::fstat(file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    return status.st_size > largest ? EFBIG : 0;
}

} // namespace

/// Opening a pipe without O_NONBLOCK would wait for somebody to write.
int ZEVRegularFile::read(const QString &path, qint64 largest, QByteArray *contents)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return errno;
    const int problem = problemOf(descriptor, largest);
    QFile file;
    if (problem != 0 || !file.open(descriptor, QFile::ReadOnly | QFile::Unbuffered)) {
        ::close(descriptor);
        return problem != 0 ? problem : EIO;
    }
    *contents = file.read(largest); // it may still be growing
    ::close(descriptor);
    return file.error() == QFile::NoError ? 0 : EIO;
}
