// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QAction;
class QMenu;
class QObject;

/// What stands beside an item in its menu. Removed items that belong to the menu are deleted once the event
/// loop comes round, so that one of them may ask for it.
namespace ZEVMenuItemRemoveAllFollowing {

ZEV_EXPORT void removeAllFollowingItems(QAction *item);
ZEV_EXPORT void removeAllOtherItems(QAction *item);

/// For a menu that may be open: QMenu::clear() deletes the items under the menu's hands.
ZEV_EXPORT void removeAllItems(QMenu *menu);

/// An empty item, \a height points high and as wide as its menu.
ZEV_EXPORT QAction *spacerItemWithHeight(int height, QObject *parent = nullptr);

} // namespace ZEVMenuItemRemoveAllFollowing
