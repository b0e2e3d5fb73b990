// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QUrl>

/// What file URLs have in common. An invalid URL stands for none.
namespace ZEVURLCommonAncestor {

/// The URL itself or the nearest folder above it that exists; a file is not one.
ZEV_EXPORT QUrl firstExistingAncestorURL(const QUrl &url);

/// The components that all begin with; of a single URL, all of them.
ZEV_EXPORT QUrl URLCommonToURLs(const QList<QUrl> &urls);

/// The folder that all lie in, if what is common to them exists.
ZEV_EXPORT QUrl commonDirectoryToURLs(const QList<QUrl> &urls);

/// For each URL, in order, the item of the common folder that it is or lies in. Kept: without a common folder
/// that is the root for all.
ZEV_EXPORT QList<QUrl> firstDescendantsOfCommonParent(const QList<QUrl> &urls);

} // namespace ZEVURLCommonAncestor
