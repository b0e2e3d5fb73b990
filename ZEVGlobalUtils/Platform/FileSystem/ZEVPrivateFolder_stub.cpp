// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPrivateFolder_p.h>

#include <QDir>

/// Elsewhere the folders that these lie in are the user's own by themselves.
bool ZEVPrivateFolder::isPrivate(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() && !folder.isSymLink();
}

bool ZEVPrivateFolder::make(const QString &path) { return QDir().mkpath(path) && isPrivate(path); }
