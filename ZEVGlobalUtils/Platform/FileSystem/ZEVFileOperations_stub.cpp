// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>

#include <cerrno>

// Nothing is done to files where the calls are not known: every operation says so.

ZEVFileFailure ZEVFileOperations::copyItem(const QByteArray &, const QByteArray &, const Handling &)
{
    return ENOSYS;
}
ZEVFileFailure ZEVFileOperations::moveItem(const QByteArray &, const QByteArray &, const Handling &)
{
    return ENOSYS;
}
ZEVFileFailure ZEVFileOperations::replaceItem(const QByteArray &, const QByteArray &) { return ENOSYS; }
ZEVFileFailure ZEVFileOperations::moveReplacing(const QByteArray &, const QByteArray &, const Handling &)
{
    return ENOSYS;
}
ZEVFileFailure ZEVFileOperations::removeItem(const QByteArray &) { return ENOSYS; }
ZEVFileFailure ZEVFileOperations::removeTemporary(const QByteArray &) { return ENOSYS; }
ZEVFileFailure ZEVFileOperations::obstacleToReplacing(const QByteArray &, const QByteArray &)
{
    return ENOSYS;
}
ZEVFileFailure ZEVFileOperations::createDirectory(const QByteArray &, bool, QByteArrayList *)
{
    return ENOSYS;
}
void ZEVFileOperations::removeEmptyDirectory(const QByteArray &) { }
ZEVFileFailure ZEVFileOperations::createTemporaryDirectory(const QByteArray &, QByteArray &)
{
    return ENOSYS;
}
ZEVFileFailure ZEVFileOperations::createFile(const QByteArray &, const QByteArray &) { return ENOSYS; }
std::optional<ZEVFileOperations::Status> ZEVFileOperations::status(const QByteArray &) { return {}; }
QByteArray ZEVFileOperations::nameOfItem(const Status &, const QByteArray &) { return {}; }
bool ZEVFileOperations::hasAccess(const QByteArray &, Access) { return false; }
int ZEVFileOperations::setPermissions(const QByteArray &, unsigned) { return ENOSYS; }
bool ZEVFileOperations::isImmutable(const QByteArray &) { return false; }
bool ZEVFileOperations::isLink(const QByteArray &) { return false; }
int ZEVFileOperations::setImmutable(const QByteArray &, bool) { return ENOSYS; }
std::optional<QString> ZEVFileOperations::tags(const QByteArray &) { return {}; }
int ZEVFileOperations::setTags(const QByteArray &, const QString &) { return ENOSYS; }
QByteArray ZEVFileOperations::resolvedPath(const QByteArray &path) { return path; }
QByteArray ZEVFileOperations::mountPoint(const QByteArray &) { return "/"; }
bool ZEVFileOperations::isSandboxed() { return false; }
QByteArray ZEVFileOperations::userName() { return qgetenv("USER"); }
