// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>

#include <ZEVGlobalUtils/Files/ZEVOpenPanelSandbox.h>
#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVMainThread_p.h>

#include <QDir>

namespace {

/// Counted with the root, as in "/", "home", "ann".
qsizetype numberOfComponents(const QByteArray &path) { return path == "/" ? 1 : path.count('/') + 1; }

bool isWithin(const QByteArray &path, const QByteArray &folder)
{
    return path.startsWith(QByteArray(folder + '/'));
}

/// Nil where no volume is mounted.
std::optional<QByteArray> mountedVolume(const QByteArray &path)
{
    for (const char *folder : {"/media", "/run/media", "/mnt"}) {
        const QByteArray root = ZEVFileOperations::mountPoint(path);
        if (isWithin(path, folder) && (root == folder || isWithin(root, folder)))
            return root;
    }
    return std::nullopt;
}

bool isSafePath(const QByteArray &path)
{
    const QByteArray home = ZEVFileOperations::resolvedPath(QDir::homePath().toUtf8());
    if (isWithin(path, "/Users/" + ZEVFileOperations::userName()))
        return numberOfComponents(path) > 4;
    if (isWithin(path, home))
        return numberOfComponents(path) > numberOfComponents(home) + 1;
    if (path.startsWith("/Volumes"))
        return numberOfComponents(path) > 3;
    const auto volume = mountedVolume(path);
    return volume && isWithin(path, *volume);
}

} // namespace

bool ZEVURLFileAccess::isAccessibleForReading(const QUrl &url)
{
    return ZEVFileOperations::hasAccess(ZEVFileURL::path(url), ZEVFileOperations::Access::Read);
}

bool ZEVURLFileAccess::isAccessibleForWriting(const QUrl &url)
{
    return ZEVFileOperations::hasAccess(ZEVFileURL::path(url), ZEVFileOperations::Access::Write);
}

bool ZEVURLFileAccess::isLocked(const QUrl &url)
{
    return ZEVFileOperations::isImmutable(ZEVFileURL::path(url));
}

bool ZEVURLFileAccess::setLocked(const QUrl &url, bool locked)
{
    return ZEVFileOperations::setImmutable(ZEVFileURL::path(url), locked) == 0;
}

bool ZEVURLFileAccess::isSafeURL(const QUrl &url)
{
    const QByteArray path = ZEVFileOperations::resolvedPath(ZEVFileURL::path(url));
    const QByteArray name = path.sliced(path.lastIndexOf('/') + 1);
    return name.compare("Dropbox", Qt::CaseInsensitive) != 0 && isSafePath(path);
}

bool ZEVURLFileAccess::requestSandboxExtention(const QUrl &url)
{
    if (!ZEVFileOperations::isSandboxed())
        return isAccessibleForReading(url);
    bool isGranted = false;
    return ZEVMainThread::callAndWait([&] { isGranted = runModalSandboxPanel(url); }) && isGranted;
}

bool ZEVURLFileAccess::runModalSandboxPanel(const QUrl &url)
{
    ZEVOpenPanel panel = ZEVOpenPanelSandbox::sandboxAccessPanelForURL(url);
    if (panel.runModal() != ZEVOpenPanel::OKResponse)
        return false;
    ZEVURLBookmarkAdditions::bookmarkAndPersistToDefaults(panel.URL);
    return true;
}
