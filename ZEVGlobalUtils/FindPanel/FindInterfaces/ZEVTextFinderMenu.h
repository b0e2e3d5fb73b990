// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <functional>

class QMenu;
class ZEVTextFinder;

/// The find items of an application's menu.
namespace ZEVTextFinderMenu {

/// Adds the usual items to \a menu, with their shortcuts and, as tags, their actions. They are enabled as
/// \a finder allows at the moment, and send it their actions; they go with the menu or with the finder.
ZEV_EXPORT void addItems(QMenu *menu, ZEVTextFinder *finder);

/// For a window of several finders: \a finder is asked whenever an item is shown or chosen, and may answer
/// null. It must stay good as long as the menu.
ZEV_EXPORT void addItems(QMenu *menu, const std::function<ZEVTextFinder *()> &finder);

} // namespace ZEVTextFinderMenu
