// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

#include <QVariant>

#include <optional>

class QAction;
class QObject;

/// What an item of a menu holds beyond Qt's action. The items are any actions, the menus any QMenu of any
/// style. A text that the host gives the action with setText() replaces the title and the attributed title.
namespace ZEVMenuItem {

enum State { Off = 0, On = 1 };

/// The title as it is meant: no "&" in it marks a mnemonic.
ZEV_EXPORT QString title(const QAction *item);
ZEV_EXPORT void setTitle(QAction *item, const QString &title);

/// Is shown in place of the title, which stays; nil shows the title again. Its formats are for colours and
/// backgrounds: a menu is made as wide as the bare text in the menu's font. Screen readers hear the bare
/// text.
ZEV_EXPORT std::optional<ZEVAttributedString> attributedTitle(const QAction *item);
ZEV_EXPORT void setAttributedTitle(QAction *item, const std::optional<ZEVAttributedString> &title);

/// The text is set in by one em for each level, from 0 to 15; other levels become the nearest.
ZEV_EXPORT int indentationLevel(const QAction *item);
ZEV_EXPORT void setIndentationLevel(QAction *item, int level);

/// The object that the item stands for: the action's data.
ZEV_EXPORT QVariant representedObject(const QAction *item);
ZEV_EXPORT void setRepresentedObject(QAction *item, const QVariant &object);

/// 0 where none was set.
ZEV_EXPORT qint64 tag(const QAction *item);
ZEV_EXPORT void setTag(QAction *item, qint64 tag);

/// On makes the item checkable. Off leaves an item that is not checkable as it is, without an empty box.
ZEV_EXPORT State state(const QAction *item);
ZEV_EXPORT void setState(QAction *item, State state);

/// An item for another menu that looks the same and, chosen, chooses \a item, as long as that lives. It
/// belongs to \a parent.
ZEV_EXPORT QAction *copyOfItem(QAction *item, QObject *parent);

} // namespace ZEVMenuItem
