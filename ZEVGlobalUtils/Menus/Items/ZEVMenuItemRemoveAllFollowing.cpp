// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>

#include <QMenu>
#include <QWidgetAction>

namespace {

constexpr int SpacerWidth = 10;

QMenu *menuOfItem(const QAction *item)
{
    for (QObject *object : item->associatedObjects()) {
        if (auto *menu = qobject_cast<QMenu *>(object))
            return menu;
    }
    return nullptr;
}

void remove(QMenu *menu, const QList<QAction *> &items)
{
    for (QAction *item : items) {
        menu->removeAction(item);
        if (item->parent() == menu && item->associatedObjects().isEmpty())
            item->deleteLater();
    }
}

} // namespace

void ZEVMenuItemRemoveAllFollowing::removeAllFollowingItems(QAction *item)
{
    if (QMenu *menu = menuOfItem(item))
        remove(menu, menu->actions().sliced(menu->actions().indexOf(item) + 1));
}

void ZEVMenuItemRemoveAllFollowing::removeAllOtherItems(QAction *item)
{
    QMenu *menu = menuOfItem(item);
    if (!menu)
        return;
    QList<QAction *> others = menu->actions();
    others.removeOne(item);
    remove(menu, others);
}

void ZEVMenuItemRemoveAllFollowing::removeAllItems(QMenu *menu) { remove(menu, menu->actions()); }

QAction *ZEVMenuItemRemoveAllFollowing::spacerItemWithHeight(int height, QObject *parent)
{
    auto *view = new QWidget;
    view->setFixedHeight(height);
    view->setMinimumWidth(SpacerWidth);
    auto *item = new QWidgetAction(parent);
    item->setDefaultWidget(view);
    item->setEnabled(false);
    return item;
}
