// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// Names and what they lead to, in one step each. Results are errnos.
namespace ZEVItemRenaming {

/// Never over an item that exists (EEXIST), also where the file system cannot promise that by itself.
int renameWithoutReplacing(const ZEVEntry &from, const ZEVEntry &to);

/// \a to is what \a from was, durably, and what was at \a to is gone; a folder may take the place of a file
/// and the other way round.
int replace(const ZEVEntry &to, const ZEVEntry &from);

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

} // namespace ZEVItemRenaming
