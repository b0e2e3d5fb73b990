// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileFailure_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

class ZEVCopiedItems;

/// Names and what they lead to, in one step each. Results are errnos.
namespace ZEVItemRenaming {

int rename(const ZEVEntry &from, const ZEVEntry &to); ///< over whatever is there, as POSIX has it
int exchange(const ZEVEntry &one, const ZEVEntry &other);

/// Whether an error says that the file system lacks the call.
bool meansUnsupported(int error);

/// Never over an item that exists (EEXIST), also where the file system cannot promise that by itself. Where it
/// has no links either, another process may still take the name in the moment before the renaming.
int renameWithoutReplacing(const ZEVEntry &from, const ZEVEntry &to);

/// Whether both are one item, seen under names that a file system takes for the same: "a.mp3" and "A.mp3".
bool isSameName(const ZEVEntry &one, const ZEVEntry &other);

/// What was written to the item, and to all in it, is on the disk.
int synchronize(const ZEVEntry &entry);
int synchronizeFolder(const ZEVEntry &entry); ///< the one that the entry lies in

enum class Force {
    None,
    MakeWritable, ///< folders that may not be written are made so first
};

/// The item and all in it. \a removed counts what has gone, whole or not.
int remove(const ZEVEntry &entry, Force force, qint64 *removed = nullptr);

/// The same of what was copied, but of nothing that has been written since: EBUSY, and \a changed names it.
int removeCopied(const ZEVEntry &entry, const ZEVCopiedItems &copied, QByteArray &changed, qint64 &removed);

/// What remove() would fail for: the rights and flags of every item, and of the folders that they lie in.
ZEVFileFailure obstacleToRemoval(const ZEVEntry &entry, const QByteArray &path, Force force);

} // namespace ZEVItemRenaming
