// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringView>
#include <QUrl>

class QMenu;

// What the record of an application holds while a menu is filled.
inline constexpr QStringView ZEVAppURLKey = u"ZEVAppURLKey";
inline constexpr QStringView ZEVAppDisplayNameKey = u"ZEVAppDisplayNameKey";
inline constexpr QStringView ZEVAppVersionKey =
    u"ZEVAppVersionKey"; ///< empty where the application tells none

/// The applications for a set of files, in a menu. Those of the desktop; see ZEVApplications for their URLs.
/// Main thread only.
namespace ZEVWorkspaceOpenWithMenu {

/// Puts the applications for the first of \a urls in the place of all that the menu holds: the default one,
/// then all others by name and version, then "Choose…". They open all of \a urls. Without any URL the menu
/// stays as it is. The items belong to the menu.
ZEV_EXPORT void setupMenu(QMenu *menu, const QList<QUrl> &withAppsHandlingURLs);

/// A failure is logged. Nothing is done without an application.
ZEV_EXPORT void openURLs(const QList<QUrl> &urls, const QUrl &withApplicationAtURL);

} // namespace ZEVWorkspaceOpenWithMenu
