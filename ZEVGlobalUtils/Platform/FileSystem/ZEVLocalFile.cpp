// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>

#include <QSysInfo>
#include <QUrl>

std::optional<QString> ZEVLocalFile::path(const QUrl &url)
{
    const QString host = url.host();
    const bool isHere = host.isEmpty() || host == u"localhost"
        || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    const QString path = url.path(QUrl::FullyDecoded);
    return url.scheme() == u"file" && isHere && !path.isEmpty() ? std::optional(path) : std::nullopt;
}
