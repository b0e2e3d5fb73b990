// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/FileStamp.h>

#include <sys/stat.h>

std::optional<FileStamp> FileStamp::of(const std::filesystem::path &path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
    return FileStamp{status.st_size, status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec,
                     status.st_ino};
}
