// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QFile>

std::optional<QString> ZEVLocalFile::path(const QUrl &url)
{
    const QByteArray path = ZEVFileURL::path(url);
    const bool namesFolder = url.path().endsWith(u'/') && path != "/";
    if (path.isEmpty())
        return std::nullopt;
    return QFile::decodeName(path) + (namesFolder ? QStringLiteral("/") : QString());
}
