// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVRegularFile_p.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>

int ZEVRegularFile::read(const QString &path, qint64 largest, QByteArray *contents)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.isSymLink())
        return info.exists() ? EINVAL : ENOENT;
    if (info.size() > largest)
        return EFBIG;
    if (!file.open(QFile::ReadOnly))
        return EACCES;
    *contents = file.read(largest);
    return 0;
}
