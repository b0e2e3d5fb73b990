// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>

#include <QFileIconProvider>
#include <QUrl>

QIcon ZEVWorkspace::iconForFile(const QUrl &url)
{
    return QFileIconProvider().icon(QFileInfo(url.toLocalFile()));
}

QIcon ZEVWorkspace::folderIcon() { return QFileIconProvider().icon(QFileIconProvider::Folder); }
