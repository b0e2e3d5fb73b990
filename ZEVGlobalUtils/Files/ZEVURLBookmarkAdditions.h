// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>
#include <QUrl>

#include <optional>

class ZEVError;

/// The key of the user defaults with the locations that were granted, in the order of granting.
inline constexpr QStringView ZEVBookmarkedLocations = u"bookmarkedLocations";

/// Places kept as bytes: a CBOR map (RFC 8949) of a reference (see ZEVFileReference) and of what a menu
/// shows.
namespace ZEVURLBookmarkAdditions {

/// Invalid, and the error, for what is no bookmark or names an item that is not found any more.
ZEV_EXPORT QUrl URLWithBookmark(const QByteArray &bookmark, ZEVError *error = nullptr);

/// Null, and the error, when there is no item at \a url. The same item gives the same bytes.
ZEV_EXPORT QByteArray bookmarkWithError(const QUrl &url, ZEVError *error = nullptr);

/// As bookmarkWithError(), and adds the bookmark to those in the user defaults, unless it is there. Main
/// thread.
ZEV_EXPORT QByteArray bookmarkAndPersistToDefaults(const QUrl &url, ZEVError *error = nullptr);

/// What a bookmark tells without being resolved.
struct ResourceValues {
    QUrl reference; ///< the item's, with the place that it had
    QString localizedName;
    QString effectiveIconName; ///< of the desktop's icon theme
    QUrl volumeURLForRemounting;
};
ZEV_EXPORT std::optional<ResourceValues> resourceValuesForBookmark(const QByteArray &bookmark);

} // namespace ZEVURLBookmarkAdditions
