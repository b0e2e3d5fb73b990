// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QAction;
class QIcon;
class QObject;
class QString;
class QTextBlockFormat;

/// Items that cannot be chosen. An item belongs to its parent; without one, whoever asked for it owns it.
namespace ZEVMenuItemHeadings {

ZEV_EXPORT QAction *disabledItemWithTitle(const QString &title, QObject *parent = nullptr);
ZEV_EXPORT QAction *disabledItemWithTitle(const QString &title, const QIcon &image,
                                          QObject *parent = nullptr);

/// A title in small grey type, at least 16 points high, 20 with leading space.
ZEV_EXPORT QAction *headingItemWithTitle(const QString &title, QObject *parent = nullptr);
ZEV_EXPORT QAction *headingItemWithTitle(const QString &title, bool leadingSpace, QObject *parent = nullptr);
/// The minimum line height of \a paragraphStyle, in points, adds its room above the title. The font is the
/// system's at 11 points of 1/96 inch, whatever the menu's font; it follows the desktop's text scaling.
ZEV_EXPORT QAction *headingItemWithTitle(const QString &title, const QTextBlockFormat &paragraphStyle,
                                         QObject *parent = nullptr);

} // namespace ZEVMenuItemHeadings
