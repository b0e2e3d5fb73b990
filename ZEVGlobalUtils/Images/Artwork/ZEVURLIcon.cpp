// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVURLIcon.h>

#include <QFileIconProvider>
#include <QUrl>

QIcon ZEVURLIcon::fileIcon(const QUrl &url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    return path.isEmpty() ? QIcon() : QFileIconProvider().icon(QFileInfo(path));
}
