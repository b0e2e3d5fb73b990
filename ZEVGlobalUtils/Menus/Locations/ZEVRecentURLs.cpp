// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVRecentURLs_p.h>

#include <ZEVGlobalUtils/Files/ZEVDataBookmarkAdditions.h>
#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

using ZEVURLBookmarkAdditions::ResourceValues;

namespace {

/// Where a drive is mounted no longer, the folder for it is gone or lies on the drive above it.
std::optional<ResourceValues> valuesOnUnmountedDrive(const QByteArray &bookmark)
{
    auto values = ZEVURLBookmarkAdditions::resourceValuesForBookmark(bookmark);
    const QByteArray volume = values ? ZEVFileURL::path(values->volumeURLForRemounting) : QByteArray();
    const bool isUnmounted = !volume.isEmpty() && ZEVFileOperations::mountPoint(volume) != volume;
    return isUnmounted ? std::move(values) : std::nullopt;
}

QUrl referenceInBookmark(const QByteArray &bookmark, bool keepsUnmounted)
{
    const QUrl found = ZEVFileReference::fileReferenceURL(ZEVDataBookmarkAdditions::bookmarkedURL(bookmark));
    if (found.isValid() || !keepsUnmounted)
        return found;
    const auto values = valuesOnUnmountedDrive(bookmark);
    return values ? values->reference : QUrl();
}

} // namespace

void ZEVRecentURLs::load(const QVariant &stored, bool keepsUnmounted)
{
    m_urls.clear();
    m_bookmarks.clear();
    for (const QVariant &value : stored.toList()) {
        const QByteArray bookmark = value.toByteArray();
        const QUrl reference = referenceInBookmark(bookmark, keepsUnmounted);
        if (!reference.isValid() || indexOf(reference) >= 0)
            continue;
        m_urls.append(reference);
        m_bookmarks.insert(reference, bookmark);
    }
}

/// Kept: what has no bookmark has nothing to store, so there may be fewer than there are locations.
QVariantList ZEVRecentURLs::stored() const
{
    QVariantList blobs;
    for (const QUrl &url : m_urls) {
        if (const auto bookmark = m_bookmarks.constFind(url); bookmark != m_bookmarks.cend())
            blobs.append(*bookmark);
    }
    return blobs;
}

void ZEVRecentURLs::add(const QUrl &reference, int maximum)
{
    const qsizetype known = indexOf(reference);
    const bool isUnchanged = known >= 0 && m_urls.at(known) == reference;
    if (known >= 0)
        m_urls.removeAt(known);
    m_urls.prepend(reference);
    if (!isUnchanged)
        makeBookmark(reference);
    if (m_urls.size() > maximum)
        m_urls.resize(maximum);
    forgetUnusedBookmarks();
}

void ZEVRecentURLs::makeBookmark(const QUrl &reference)
{
    ZEVError error;
    const QByteArray bookmark = ZEVURLBookmarkAdditions::bookmarkWithError(reference, &error);
    if (bookmark.isNull())
        qCWarning(zevLog).noquote() << error.localizedDescription();
    else
        m_bookmarks.insert(reference, bookmark);
}

void ZEVRecentURLs::removeMissing(bool keepsUnmounted)
{
    m_urls.removeIf(
        [&](const QUrl &url) { return !isThere(url) && !(keepsUnmounted && unmounted(url).has_value()); });
    forgetUnusedBookmarks();
}

void ZEVRecentURLs::forgetUnusedBookmarks()
{
    m_bookmarks.removeIf([&](const auto &entry) { return !m_urls.contains(entry.key()); });
}

std::optional<ZEVRecentURLs::Unmounted> ZEVRecentURLs::unmounted(const QUrl &reference) const
{
    const auto values = valuesOnUnmountedDrive(m_bookmarks.value(reference));
    if (!values || isThere(reference))
        return std::nullopt;
    return Unmounted{values->localizedName, values->effectiveIconName};
}

QUrl ZEVRecentURLs::unmountedLike(const QUrl &reference) const
{
    const qsizetype known = indexOf(reference);
    return reference.isValid() && known >= 0 && unmounted(m_urls.at(known)) ? m_urls.at(known) : QUrl();
}

bool ZEVRecentURLs::isThere(const QUrl &reference)
{
    const QUrl url = ZEVFileReference::filePathURL(reference);
    return url.isLocalFile() && ZEVPlainFileManager::defaultManager()->fileExistsAtURL(url);
}

/// Under whatever name, or under the same one: programs that save replace the file.
bool ZEVRecentURLs::isSameItem(const QUrl &one, const QUrl &other)
{
    if (!one.fragment().isEmpty() && one.fragment() == other.fragment())
        return true;
    return ZEVFileReference::filePathURL(one) == ZEVFileReference::filePathURL(other);
}

qsizetype ZEVRecentURLs::indexOf(const QUrl &reference) const
{
    for (qsizetype i = 0; i < m_urls.size(); ++i) {
        if (isSameItem(m_urls.at(i), reference))
            return i;
    }
    return -1;
}
