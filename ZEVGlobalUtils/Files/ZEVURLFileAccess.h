// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QUrl;

/// What may be done at a place. All but the panel: any thread.
namespace ZEVURLFileAccess {

/// By the rights of the real user (POSIX access); false where there is no item.
ZEV_EXPORT bool isAccessibleForReading(const QUrl &url);
ZEV_EXPORT bool isAccessibleForWriting(const QUrl &url);

/// Whether the item has the immutable flag (see chattr).
ZEV_EXPORT bool isLocked(const QUrl &url);

/// False when the flag could not be changed, for want of the right to or since the file system has none;
/// unlocking succeeds there. Kept: either way the user's other flags of the item (append-only, no-dump) are
/// cleared.
ZEV_EXPORT bool setLocked(const QUrl &url, bool locked);

/// Whether items may be made or renamed there without surprising the user: within a folder of the home
/// folder, or within a volume, of which /Volumes, /media, /run/media and /mnt hold any. The home folder's own
/// folders, the roots of volumes and a folder "Dropbox" itself are not safe, nor is any other place.
ZEV_EXPORT bool isSafeURL(const QUrl &url);

/// Asks for access to the place, where there is somebody to ask: in a sandbox, the user through the panel,
/// from any thread, which waits for the answer. Elsewhere it says whether the place is accessible by now.
ZEV_EXPORT bool requestSandboxExtention(const QUrl &url);

/// Shows the access panel, and keeps what the user grants as a bookmark. Main thread only.
ZEV_EXPORT bool runModalSandboxPanel(const QUrl &url);

} // namespace ZEVURLFileAccess
