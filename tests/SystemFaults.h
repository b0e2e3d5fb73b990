// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/// Lets the system calls of the library fail: the program's own functions of these names come before those of
/// the C library. To be included in one source of a test.
namespace SystemFaults {

inline thread_local int callsLeft = 0; ///< the call after so many fails; 0 lets none fail
inline thread_local int failure = 0;
inline thread_local int alwaysFailure = 0;
inline thread_local const char *alwaysFailing = ""; ///< the name of a call that is not there at all

/// One fault, as long as this lives.
struct Nth {
    Nth(int n, int error)
    {
        callsLeft = n;
        failure = error;
    }
    ~Nth() { callsLeft = 0; }
    bool wasReached() const { return callsLeft == 0; }
};

struct Without {
    explicit Without(const char *name, int error = EINVAL)
    {
        alwaysFailing = name;
        alwaysFailure = error;
    }
    ~Without() { alwaysFailing = ""; }
};

inline thread_local std::string *heard = nullptr;

/// The names of the calls that are made as long as this lives, each with a space behind it.
struct Trace {
    Trace() { heard = &calls; }
    ~Trace() { heard = nullptr; }
    std::string calls;
};

inline bool fails(const char *name)
{
    if (heard)
        *heard += std::string(name) + ' ';
    if (callsLeft > 0 && --callsLeft == 0) {
        errno = failure;
        return true;
    }
    if (*alwaysFailing == '\0' || std::strcmp(alwaysFailing, name) != 0)
        return false;
    errno = alwaysFailure;
    return true;
}

} // namespace SystemFaults

#define ZEV_CALL(result, name, parameters, arguments)                                                        \
    extern "C" __attribute__((visibility("default"))) result name parameters                                 \
    {                                                                                                        \
        static const auto real = reinterpret_cast<result(*) parameters>(dlsym(RTLD_NEXT, #name));            \
        return SystemFaults::fails(#name) ? result(-1) : real arguments;                                     \
    }

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnonnull-compare"
#pragma GCC diagnostic ignored "-Wattributes"
// clang-format off
ZEV_CALL(int, openat, (int folder, const char *path, int flags, ...), (folder, path, flags, 0600))
ZEV_CALL(int, mkdirat, (int folder, const char *path, mode_t mode), (folder, path, mode))
ZEV_CALL(int, mkdir, (const char *path, mode_t mode) noexcept, (path, mode))
ZEV_CALL(int, symlinkat, (const char *target, int folder, const char *path), (target, folder, path))
ZEV_CALL(ssize_t, readlinkat, (int folder, const char *path, char *bytes, size_t size), (folder, path, bytes, size))
ZEV_CALL(int, linkat, (int a, const char *from, int b, const char *to, int flags), (a, from, b, to, flags))
ZEV_CALL(int, unlinkat, (int folder, const char *path, int flags), (folder, path, flags))
ZEV_CALL(int, renameat, (int a, const char *from, int b, const char *to), (a, from, b, to))
ZEV_CALL(int, renameat2, (int a, const char *from, int b, const char *to, unsigned flags), (a, from, b, to, flags))
ZEV_CALL(int, fstat, (int file, struct stat *status), (file, status))
ZEV_CALL(int, fstatat, (int folder, const char *path, struct stat *status, int flags), (folder, path, status, flags))
ZEV_CALL(off_t, lseek, (int file, off_t offset, int whence), (file, offset, whence))
ZEV_CALL(int, ftruncate, (int file, off_t size), (file, size))
ZEV_CALL(ssize_t, copy_file_range, (int a, off64_t *from, int b, off64_t *to, size_t size, unsigned flags), (a, from, b, to, size, flags))
ZEV_CALL(ssize_t, pread, (int file, void *bytes, size_t size, off_t offset), (file, bytes, size, offset))
ZEV_CALL(ssize_t, pwrite, (int file, const void *bytes, size_t size, off_t offset), (file, bytes, size, offset))
ZEV_CALL(ssize_t, write, (int file, const void *bytes, size_t size), (file, bytes, size))
ZEV_CALL(int, fchmod, (int file, mode_t mode), (file, mode))
ZEV_CALL(int, futimens, (int file, const struct timespec times[2]), (file, times))
ZEV_CALL(int, utimensat, (int folder, const char *path, const struct timespec times[2], int flags), (folder, path, times, flags))
ZEV_CALL(ssize_t, flistxattr, (int file, char *names, size_t size), (file, names, size))
ZEV_CALL(ssize_t, fgetxattr, (int file, const char *name, void *value, size_t size), (file, name, value, size))
ZEV_CALL(int, fsetxattr, (int file, const char *name, const void *value, size_t size, int flags), (file, name, value, size, flags))
ZEV_CALL(int, fsync, (int file), (file))
ZEV_CALL(int, syncfs, (int file), (file))
// clang-format on
#pragma GCC diagnostic pop
#undef ZEV_CALL
