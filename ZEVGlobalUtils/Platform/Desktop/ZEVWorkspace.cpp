// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QFileIconProvider>

QIcon ZEVWorkspace::iconForFile(const QUrl &url)
{
    const QByteArray path = ZEVFileURL::path(url);
    const auto status = ZEVFileOperations::status(path);
    const QString name = QString::fromUtf8(path);
    // A name that is no UTF-8 says only by its end what the item is.
    if (status && status->isDirectory && name.toUtf8() != path)
        return folderIcon();
    return QFileIconProvider().icon(QFileInfo(name));
}

QIcon ZEVWorkspace::folderIcon() { return QFileIconProvider().icon(QFileIconProvider::Folder); }
