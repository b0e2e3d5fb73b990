// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QCborMap>
#include <QMimeDatabase>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

const QString ReferenceKey = u"NSURLFileReference"_s;
const QString IconKey = u"NSURLEffectiveIconKey"_s;
const QString VolumeKey = u"NSURLVolumeURLForRemountingKey"_s;
const QString NameKey = u"NSURLLocalizedNameKey"_s;

void setError(ZEVError *error, int posixCode, const QUrl &url)
{
    if (error)
        *error = ZEVFileErrors::error(posixCode, ZEVFileErrors::Operation::Change, url);
}

QString encoded(const QUrl &url) { return QString::fromLatin1(url.toEncoded()); }

QUrl decoded(const QCborValue &value) { return QUrl::fromEncoded(value.toString().toLatin1()); }

QString iconName(const QUrl &url)
{
    const auto status = ZEVFileOperations::status(ZEVFileURL::path(url));
    const QMimeDatabase database;
    if (status && status->isDirectory)
        return database.mimeTypeForName(u"inode/directory"_s).iconName();
    return database.mimeTypeForFile(ZEVFileURL::displayName(url), QMimeDatabase::MatchExtension).iconName();
}

/// Damaged and foreign bytes give an empty map.
QCborMap fields(const QByteArray &bookmark)
{
    QCborParserError error;
    const QCborMap map = QCborValue::fromCbor(bookmark, &error).toMap();
    const bool isBookmark =
        error.error == QCborError::NoError && decoded(map.value(ReferenceKey)).isLocalFile();
    return isBookmark ? map : QCborMap();
}

} // namespace

QUrl ZEVURLBookmarkAdditions::URLWithBookmark(const QByteArray &bookmark, ZEVError *error)
{
    const QUrl reference = decoded(fields(bookmark).value(ReferenceKey));
    QUrl url = ZEVFileReference::filePathURL(reference);
    if (url.isLocalFile() && ZEVFileOperations::status(ZEVFileURL::path(url)))
        return url;
    setError(error, reference.isLocalFile() ? ENOENT : EINVAL, url);
    return {};
}

QByteArray ZEVURLBookmarkAdditions::bookmarkWithError(const QUrl &url, ZEVError *error)
{
    const QUrl reference = ZEVFileReference::fileReferenceURL(url);
    if (!reference.isValid()) {
        setError(error, ENOENT, url);
        return {};
    }
    const QUrl place = ZEVFileReference::filePathURL(reference);
    const QUrl volume = ZEVFileURL::withPath(ZEVFileOperations::mountPoint(ZEVFileURL::path(place)));
    return QCborValue(QCborMap{{ReferenceKey, encoded(reference)},
                               {NameKey, ZEVFileURL::displayName(place)},
                               {IconKey, iconName(place)},
                               {VolumeKey, encoded(volume)}})
        .toCbor();
}

QByteArray ZEVURLBookmarkAdditions::bookmarkAndPersistToDefaults(const QUrl &url, ZEVError *error)
{
    QByteArray bookmark = bookmarkWithError(url, error);
    if (bookmark.isNull())
        return {};
    ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    QVariantList locations = defaults->objectForKey(ZEVBookmarkedLocations.toString()).toList();
    if (!locations.contains(bookmark)) {
        locations.append(bookmark);
        defaults->setObject(locations, ZEVBookmarkedLocations.toString());
    }
    return bookmark;
}

std::optional<ZEVURLBookmarkAdditions::ResourceValues>
ZEVURLBookmarkAdditions::resourceValuesForBookmark(const QByteArray &bookmark)
{
    const QCborMap values = fields(bookmark);
    if (values.isEmpty())
        return std::nullopt;
    return ResourceValues{decoded(values.value(ReferenceKey)), values.value(NameKey).toString(),
                          values.value(IconKey).toString(), decoded(values.value(VolumeKey))};
}
