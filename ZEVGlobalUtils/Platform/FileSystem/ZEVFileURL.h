// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArrayList>
#include <QUrl>

/// File URLs and the bytes of their paths. A file's name is bytes: what is no UTF-8 in it stands in the URL
/// percent-encoded (RFC 3986), which QUrl keeps as it is, so that every name survives the way there and back.
/// QUrl::toLocalFile() loses such names. Any thread.
namespace ZEVFileURL {

/// Absolute, without doubled or trailing slashes; empty for what is no file of this machine (RFC 8089: a
/// program may name it), a URL with another host, a relative path or a zero byte in it.
ZEV_EXPORT QByteArray path(const QUrl &url);

/// \a path is absolute.
ZEV_EXPORT QUrl withPath(const QByteArray &path);

/// "/" first, then the names.
ZEV_EXPORT QByteArrayList pathComponents(const QUrl &url);
ZEV_EXPORT QUrl withPathComponents(const QByteArrayList &components);

ZEV_EXPORT QByteArray lastPathComponent(const QUrl &url);
ZEV_EXPORT QUrl byDeletingLastPathComponent(const QUrl &url);
ZEV_EXPORT QUrl byAppendingPathComponent(const QUrl &url, const QByteArray &name);

/// The last component for people: what is no UTF-8 shows as U+FFFD, and ":" as "/", the form in which users
/// of such names see them.
ZEV_EXPORT QString displayName(const QUrl &url);

} // namespace ZEVFileURL
