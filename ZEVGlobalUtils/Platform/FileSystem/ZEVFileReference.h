// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QUrl>

/// File URLs that know their item: a fragment, "#id=" with device, inode and birth time, finds it again under
/// another name in the same folder. Whoever does not know the fragment sees the path. Any thread.
namespace ZEVFileReference {

/// Invalid where there is no item.
ZEV_EXPORT QUrl fileReferenceURL(const QUrl &url);

/// Where the item of a reference is now; where it cannot be found, the path that it had. A URL without a
/// reference comes back unchanged.
ZEV_EXPORT QUrl filePathURL(const QUrl &url);

} // namespace ZEVFileReference
