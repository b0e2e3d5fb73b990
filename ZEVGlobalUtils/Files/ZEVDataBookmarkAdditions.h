// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QByteArray;
class QUrl;

namespace ZEVDataBookmarkAdditions {

/// Where the item of a bookmark is now; invalid when it is not found, or \a data is no bookmark.
ZEV_EXPORT QUrl bookmarkedURL(const QByteArray &data);

} // namespace ZEVDataBookmarkAdditions
