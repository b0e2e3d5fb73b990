// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

/// What is asked of the system about files. Paths are absolute and bytes; failures come as an errno, 0 being
/// success. No operation follows a symbolic link in the last place unless it says so, none leaves a half item
/// under a final name, and what fails leaves source and destination as they were.
namespace ZEVFileOperations {

/// Told how many bytes an operation has copied so far; false cancels it (ECANCELED).
using Progress = std::function<bool(qint64 bytes)>;

/// Whole folders too; EEXIST where the destination exists.
int copyItem(const QByteArray &source, const QByteArray &destination, const Progress &progress);
int moveItem(const QByteArray &source, const QByteArray &destination, const Progress &progress);

/// Durable: puts \a replacement in the place of \a item, at once. EXDEV across volumes.
int replaceItem(const QByteArray &item, const QByteArray &replacement);
int removeItem(const QByteArray &path);

int createDirectory(const QByteArray &path, bool withIntermediateDirectories);

/// A private folder beside \a path, whose name is none of the user's.
int createTemporaryDirectory(const QByteArray &path, QByteArray &created);

/// A new file, of which all is there or nothing; EEXIST where the name is taken.
int createFile(const QByteArray &path, const QByteArray &contents);

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
bool mayRemove(const QByteArray &path);

int setPermissions(const QByteArray &path, unsigned mode); ///< follows links
bool isImmutable(const QByteArray &path); ///< follows links
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
