// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QUrl>

#include <functional>

class QAction;
class QMenu;

namespace ZEVMenuRecents {

using ActionBlock = std::function<void(const QUrl &itemURL)>;

/// Appends an item for each URL, with its icon and its name. Where the menu has an item of that name already,
/// both are shown with the names of their folders. A chosen item calls \a actionBlock with its URL, once the
/// menu has done with the click or the key. The items belong to the menu.
ZEV_EXPORT void fillWithRecentsItemURLs(QMenu *menu, const QList<QUrl> &urls, const ActionBlock &actionBlock);

/// Shows \a item, whose represented object is its URL, by its name; where \a ambiguous by the name of the
/// folder too. The whole path is its tool tip.
ZEV_EXPORT void setNameAndIcon(QAction *item, bool ambiguous);

} // namespace ZEVMenuRecents
