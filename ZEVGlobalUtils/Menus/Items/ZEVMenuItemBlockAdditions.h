// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariant>

#include <functional>

class QAction;
class QKeySequence;
class QObject;

/// Menu items that carry what is done when they are chosen. Titles are shown as they are: no "&" marks a
/// mnemonic. An item belongs to its parent; without one, whoever asked for it owns it.
namespace ZEVMenuItemBlockAdditions {

/// Is called with the item; with null when the item has gone since it was chosen.
using Block = std::function<void(QAction *sender)>;

ZEV_EXPORT QAction *itemWithTitle(const QString &title, QObject *parent = nullptr);
/// Choosing the item sends \a action, the name of a slot or invokable method that takes the item or nothing,
/// up the chain that begins with \a target (see ZEVResponder), which may go first. Null begins with the
/// widget that has the focus.
ZEV_EXPORT QAction *itemWithTitle(const QString &title, QObject *target, const QByteArray &action,
                                  QObject *parent = nullptr);
ZEV_EXPORT QAction *itemWithTitle(const QString &title, const Block &block, QObject *parent = nullptr);
ZEV_EXPORT QAction *itemWithTitle(const QString &title, const QKeySequence &keyEquivalent, const Block &block,
                                  QObject *parent = nullptr);

/// The block of an item in a menu is called when the menu has done with the click or the key, so that it may
/// delete or rebuild that menu; without a menu it is called at once. Clearing it leaves an item that does
/// nothing.
ZEV_EXPORT Block block(const QAction *item);
ZEV_EXPORT void setBlock(QAction *item, const Block &block);
ZEV_EXPORT void _performBlockAction(QAction *item);

ZEV_EXPORT QVariant userInfo(const QAction *item);
ZEV_EXPORT void setUserInfo(QAction *item, const QVariant &userInfo);

} // namespace ZEVMenuItemBlockAdditions
