// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPrivateFolder_p.h>

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// All is asked of one open folder, so that none can be put in its place in between.
bool ZEVPrivateFolder::isPrivate(const QString &path)
{
    const int folder =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0)
        return false;
    const auto closing = qScopeGuard([folder] { close(folder); });
    struct stat status;
    if (fstat(folder, &status) != 0 || status.st_uid != geteuid())
        return false;
    return (status.st_mode & 07777) == S_IRWXU || fchmod(folder, S_IRWXU) == 0;
}

bool ZEVPrivateFolder::make(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    mkdir(QFile::encodeName(path).constData(), S_IRWXU);
    return isPrivate(path);
}
