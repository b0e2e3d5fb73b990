// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileFailure_p.h>

#include <QByteArrayList>
#include <QString>

#include <functional>
#include <optional>

/// What is asked of the system about files. Paths are absolute and bytes; failures are those of
/// ZEVFileFailure, or an errno alone. No operation follows a symbolic link in the last place unless it says so, none leaves a half item
/// under a final name, and what fails leaves source and destination as they were.
namespace ZEVFileOperations {

/// What is asked while items are copied.
struct Handling {
    /// Told how many bytes an operation has copied so far; false cancels it (ECANCELED).
    std::function<bool(qint64 bytes)> progress;

    /// Whether the item may lose attributes that are too large for the volume.
    std::function<bool(const QByteArray &path)> mayLeaveOutAttributes;
};

/// Whole folders too; EEXIST where the destination exists.
ZEVFileFailure copyItem(const QByteArray &source, const QByteArray &destination, const Handling &handling);
ZEVFileFailure moveItem(const QByteArray &source, const QByteArray &destination, const Handling &handling);

/// Durable: puts \a replacement in the place of \a item, at once. EXDEV across volumes.
ZEVFileFailure replaceItem(const QByteArray &item, const QByteArray &replacement);

/// The same from another volume: what is replaced goes when the source has gone.
ZEVFileFailure moveReplacing(const QByteArray &source, const QByteArray &destination,
                             const Handling &handling);

/// Whether the destination is a folder around the source, whose place nothing from within may take.
ZEVFileFailure obstacleToReplacing(const QByteArray &source, const QByteArray &destination);

ZEVFileFailure removeItem(const QByteArray &path);
ZEVFileFailure removeTemporary(const QByteArray &path); ///< with all in it, whatever its rights are

ZEVFileFailure createDirectory(const QByteArray &path, bool withIntermediateDirectories,
                               QByteArrayList *created = nullptr);
void removeEmptyDirectory(const QByteArray &path);

/// A private folder beside \a path, whose name is none of the user's.
ZEVFileFailure createTemporaryDirectory(const QByteArray &path, QByteArray &created);

/// A new file, of which all is there or nothing; EEXIST where the name is taken.
ZEVFileFailure createFile(const QByteArray &path, const QByteArray &contents);

struct Status {
    bool isDirectory = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 birthTime = 0; ///< nanoseconds since 1970; 0 where the file system does not say
};
std::optional<Status> status(const QByteArray &path); ///< follows links

/// The name in \a folder of the item with this identity; null when there is none.
QByteArray nameOfItem(const Status &identity, const QByteArray &folder);

enum class Access { Read = 4, Write = 2 };
bool hasAccess(const QByteArray &path, Access access); ///< follows links

int setPermissions(const QByteArray &path, unsigned mode); ///< follows links
bool isImmutable(const QByteArray &path); ///< follows links
bool isLink(const QByteArray &path);
int setImmutable(const QByteArray &path, bool immutable); ///< follows links

/// Of a folder or file, in the order given to them; follows links.
std::optional<QString> tags(const QByteArray &path);
int setTags(const QByteArray &path, const QString &tags);

/// Without links and relative names, as far as it exists; the rest follows as it is.
QByteArray resolvedPath(const QByteArray &path);

/// The root of the volume that \a path lies on, as far as it exists.
QByteArray mountPoint(const QByteArray &path);

bool isSandboxed();
QByteArray userName();

} // namespace ZEVFileOperations
