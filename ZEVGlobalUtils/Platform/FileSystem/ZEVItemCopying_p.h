// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// One copy of an item and all in it.
class ZEVItemCopying {
public:
    enum class Owner {
        Process, ///< the copy is the user's, as any new file
        Source, ///< as far as the user may give it away
    };

    ZEVItemCopying(const ZEVFileOperations::Progress &progress, Owner owner)
        : m_progress(progress)
        , m_owner(owner)
    {
    }

    /// Makes \a target, which does not exist, readable to its owner alone until it is whole. A failure
    /// leaves what there is by then. Sockets and devices are refused (ENOTSUP).
    int copy(const ZEVEntry &source, const ZEVEntry &target);

private:
    int copyFile(const ZEVEntry &source, const ZEVEntry &target);
    int copyFolder(const ZEVEntry &source, const ZEVEntry &target);
    int copyContents(int source, int target);
    int copyLink(const ZEVEntry &source, const ZEVEntry &target, const struct stat &status);
    int copyPipe(const ZEVEntry &target, const struct stat &status);

    int copyData(int source, int target, const struct stat &status);
    int copyExtents(int source, int target, qint64 size);
    int copyRange(int source, int target, qint64 begin, qint64 end);
    int copyByReading(int source, int target, qint64 begin, qint64 end);

    int copyMetadata(int source, int target, const struct stat &status);
    mode_t giveAway(const ZEVEntry &target, const struct stat &status) const;
    bool goesOn(qint64 bytes);

    const ZEVFileOperations::Progress &m_progress;
    Owner m_owner;
    qint64 m_copied = 0;
    bool m_mayClone = true; ///< until a file system has said that it cannot
};

namespace ZEVExtendedAttributes {

/// `user.*` and the access control lists, where the file system of \a target has them.
int copy(int source, int target);

} // namespace ZEVExtendedAttributes
