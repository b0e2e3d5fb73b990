// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QMenu;
class ZEVTextFinder;

/// The find items of an application's menu.
namespace ZEVTextFinderMenu {

/// Adds the usual items to \a menu, with their shortcuts and, as tags, their actions. They are enabled as
/// \a finder allows at the moment, and send it their actions; they go with the menu or with the finder.
ZEV_EXPORT void addItems(QMenu *menu, ZEVTextFinder *finder);

} // namespace ZEVTextFinderMenu
