// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVWholeFile_p.h>

#include <QSaveFile>

std::optional<ZEVWholeFile::Failure> ZEVWholeFile::write(const QString &path, const QByteArray &data,
                                                         QFileDevice::Permissions permissions)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly)
        && (!permissions || file.setPermissions(permissions)) && file.write(data) == data.size()
        && file.flush() && file.commit();
    return isWritten ? std::nullopt : std::optional(Failure{file.error(), file.errorString()});
}
