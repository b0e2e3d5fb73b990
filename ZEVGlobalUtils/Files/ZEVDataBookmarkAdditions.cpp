// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVDataBookmarkAdditions.h>

#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>

QUrl ZEVDataBookmarkAdditions::bookmarkedURL(const QByteArray &data)
{
    return ZEVURLBookmarkAdditions::URLWithBookmark(data);
}
