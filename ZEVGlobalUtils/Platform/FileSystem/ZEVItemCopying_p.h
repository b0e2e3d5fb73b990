// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVCopiedItems_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileFailure_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// One copy of an item and all in it.
class ZEVItemCopying {
public:
    enum class Owner {
        Process, ///< the copy is the user's, as any new file
        Source, ///< as far as the user may give it away
    };

    /// The paths are those that failures tell of.
    ZEVItemCopying(const ZEVFileOperations::Handling &handling, Owner owner, const QByteArray &sourcePath,
                   const QByteArray &targetPath)
        : m_handling(handling)
        , m_owner(owner)
        , m_sourcePath(sourcePath)
        , m_targetPath(targetPath)
    {
    }

    /// Makes \a target, which does not exist, readable to its owner alone until it is whole. A failure
    /// leaves what there is by then. Sockets and devices are refused (ENOTSUP). What a volume does not keep
    /// of an item is left out, and logged once, unless others could then read what they cannot now.
    ZEVFileFailure copy(const ZEVEntry &source, const ZEVEntry &target);

    /// What copy() has copied, if it was for Owner::Source.
    const ZEVCopiedItems &copied() const { return m_copied; }

private:
    using Reason = ZEVFileFailure::Reason;

    int copyItem(const ZEVEntry &source, const ZEVEntry &target);
    int copyFile(const ZEVEntry &source, const ZEVEntry &target);
    int copyFolder(const ZEVEntry &source, const ZEVEntry &target);
    int copyContents(int source, int target);
    int copyLink(const ZEVEntry &source, const ZEVEntry &target, const struct stat &status);
    int copyPipe(const ZEVEntry &target, const struct stat &status);
    bool linkToCopy(const ZEVEntry &target, const struct stat &status);

    int copyData(int source, int target, const struct stat &status);
    int copyExtents(int source, int target, qint64 size);
    int copyHole(int source, int target, qint64 size);
    int copyRange(int source, int target, qint64 begin, qint64 end);
    int copyByReading(int source, int target, qint64 begin, qint64 end);

    int copyMetadata(int source, int target, const struct stat &status);
    int copyAttributes(int source, int target, mode_t &mode);
    int copyAttribute(int source, int target, const QByteArray &name, mode_t &mode);
    int setMode(int target, mode_t mode);
    int setTimes(const ZEVEntry &target, const struct stat &status);
    mode_t giveAway(const ZEVEntry &target, const struct stat &status) const;
    int leftOut(int error); ///< 0 where the volume does not keep it

    bool goesOn(qint64 bytes);
    void record(const struct stat &status);
    int because(Reason reason, int error);
    int notMade(int error);
    QByteArray nameWithin() const { return m_path.sliced(m_sourcePath.size()); }

    const ZEVFileOperations::Handling &m_handling;
    Owner m_owner;
    QByteArray m_sourcePath;
    QByteArray m_targetPath;
    ZEVEntry m_target;
    QByteArray m_path; ///< of the source that is being copied
    Reason m_reason = Reason::Within;
    ZEVCopiedItems m_copied;
    QHash<std::pair<quint64, quint64>, QByteArray> m_linked; ///< the first copies of items with several names
    qint64 m_bytes = 0;
    bool m_mayClone = true; ///< until a file system has said that it cannot
    bool m_isAtEnd = false; ///< of a file that is shorter than it says
    bool m_hasLeftOut = false;
};
