// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// Hidden items under which something is made or waits to be removed: ".zev-", what tells their process and
/// time, ".tmp". Whatever lies under such a name may go once its process has gone, except where the name of
/// an item follows after "-": that item was being taken away, and comes back to its name.
namespace ZEVTemporaries {

QByteArray name();

/// For an item that may still have to come back.
QByteArray nameFor(const QByteArray &itemName);

/// Removes or brings back what processes of this machine have left in a folder that ended over a minute ago.
/// Looks into the same folder once a minute at most.
void clearLeftovers(int folder);

} // namespace ZEVTemporaries
