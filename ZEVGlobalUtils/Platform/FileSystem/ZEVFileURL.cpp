// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QSysInfo>

using namespace Qt::StringLiterals;

QByteArray ZEVFileURL::path(const QUrl &url)
{
    const bool isOurs = url.host().isEmpty() || url.host() == u"localhost"
        || url.host().compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    const QByteArray given = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (!url.isLocalFile() || !isOurs || !given.startsWith('/') || given.contains('\0'))
        return {};
    QByteArray path;
    path.reserve(given.size());
    for (const char byte : given) {
        if (byte != '/' || !path.endsWith('/'))
            path.append(byte);
    }
    if (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

QUrl ZEVFileURL::withPath(const QByteArray &path)
{
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"), QUrl::StrictMode);
}

QByteArrayList ZEVFileURL::pathComponents(const QUrl &url)
{
    QByteArrayList components{"/"};
    for (const QByteArray &name : path(url).split('/')) {
        if (!name.isEmpty())
            components.append(name);
    }
    return components;
}

QUrl ZEVFileURL::withPathComponents(const QByteArrayList &components)
{
    return withPath('/' + components.sliced(1).join('/'));
}

QByteArray ZEVFileURL::lastPathComponent(const QUrl &url) { return pathComponents(url).constLast(); }

QUrl ZEVFileURL::byDeletingLastPathComponent(const QUrl &url)
{
    QByteArrayList components = pathComponents(url);
    if (components.size() > 1)
        components.removeLast();
    return withPathComponents(components);
}

QUrl ZEVFileURL::byAppendingPathComponent(const QUrl &url, const QByteArray &name)
{
    return withPath(path(url) + '/' + name);
}

QString ZEVFileURL::displayName(const QUrl &url)
{
    return QString::fromUtf8(lastPathComponent(url)).replace(u':', u'/');
}
