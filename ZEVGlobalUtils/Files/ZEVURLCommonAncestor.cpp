// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVURLCommonAncestor.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <algorithm>

namespace {

bool isFolder(const QUrl &url)
{
    bool isDirectory = false;
    ZEVPlainFileManager::defaultManager()->fileExistsAtURL(url, &isDirectory);
    return isDirectory;
}

} // namespace

QUrl ZEVURLCommonAncestor::firstExistingAncestorURL(const QUrl &url)
{
    QUrl ancestor = url;
    while (ZEVFileURL::path(ancestor).size() >= 2 && !isFolder(ancestor))
        ancestor = ZEVFileURL::byDeletingLastPathComponent(ancestor);
    return ancestor;
}

QUrl ZEVURLCommonAncestor::URLCommonToURLs(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return {};
    QByteArrayList common = ZEVFileURL::pathComponents(urls.first());
    for (const QUrl &url : urls.sliced(1)) {
        const QByteArrayList components = ZEVFileURL::pathComponents(url);
        common.resize(std::ranges::mismatch(common, components).in1 - common.begin());
    }
    return ZEVFileURL::withPathComponents(common);
}

QUrl ZEVURLCommonAncestor::commonDirectoryToURLs(const QList<QUrl> &urls)
{
    const QUrl common = URLCommonToURLs(urls);
    if (!common.isValid() || !ZEVPlainFileManager::defaultManager()->fileExistsAtURL(common))
        return {};
    return isFolder(common) ? common : ZEVFileURL::byDeletingLastPathComponent(common);
}

QList<QUrl> ZEVURLCommonAncestor::firstDescendantsOfCommonParent(const QList<QUrl> &urls)
{
    const QUrl folder = commonDirectoryToURLs(urls);
    const qsizetype depth = folder.isValid() ? ZEVFileURL::pathComponents(folder).size() + 1 : 1;
    QList<QUrl> descendants;
    for (const QUrl &url : urls) {
        const QByteArrayList components = ZEVFileURL::pathComponents(url);
        const bool isDeeper = components.size() > depth;
        descendants.append(isDeeper ? ZEVFileURL::withPathComponents(components.first(depth)) : url);
    }
    return descendants;
}
