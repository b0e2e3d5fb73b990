// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVResponder.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>

#include <algorithm>

using ZEVMenuItemBlockAdditions::Block;

Q_DECLARE_METATYPE(Block)

namespace {

constexpr char BlockKey[] = "zevBlock";
constexpr char UserInfoKey[] = "zevUserInfo";

bool isInMenu(const QAction *item)
{
    return std::ranges::any_of(item->associatedObjects(),
                               [](QObject *object) { return qobject_cast<QMenu *>(object); });
}

/// A menu touches itself once more after its item was triggered, so it must not be deleted before.
void whenMenuHasDone(const QAction *item, const std::function<void()> &perform)
{
    if (isInMenu(item))
        QMetaObject::invokeMethod(qApp, perform, Qt::QueuedConnection);
    else
        perform();
}

void choose(QAction *item)
{
    const Block block = ZEVMenuItemBlockAdditions::block(item);
    const QPointer sender(item);
    if (block)
        whenMenuHasDone(item, [block, sender] { block(sender); });
}

void sendAction(QAction *item, const QPointer<QObject> &target, const QByteArray &action)
{
    const QPointer sender(item);
    whenMenuHasDone(item,
                    [=] { ZEVResponder::tryToPerform(target, action, QVariant::fromValue(sender.data())); });
}

} // namespace

QAction *ZEVMenuItemBlockAdditions::itemWithTitle(const QString &title, QObject *parent)
{
    auto *item = new QAction(parent);
    ZEVMenuItem::setTitle(item, title);
    return item;
}

QAction *ZEVMenuItemBlockAdditions::itemWithTitle(const QString &title, QObject *target,
                                                  const QByteArray &action, QObject *parent)
{
    QAction *item = itemWithTitle(title, parent);
    const bool hasTarget = target;
    QObject::connect(item, &QAction::triggered, item, [=, weakTarget = QPointer(target)] {
        sendAction(item, hasTarget ? weakTarget : QApplication::focusWidget(), action);
    });
    return item;
}

QAction *ZEVMenuItemBlockAdditions::itemWithTitle(const QString &title, const Block &block, QObject *parent)
{
    return itemWithTitle(title, {}, block, parent);
}

QAction *ZEVMenuItemBlockAdditions::itemWithTitle(const QString &title, const QKeySequence &keyEquivalent,
                                                  const Block &block, QObject *parent)
{
    QAction *item = itemWithTitle(title, parent);
    item->setShortcut(keyEquivalent);
    setBlock(item, block);
    return item;
}

Block ZEVMenuItemBlockAdditions::block(const QAction *item)
{
    return item->property(BlockKey).value<Block>();
}

void ZEVMenuItemBlockAdditions::setBlock(QAction *item, const Block &block)
{
    const bool isConnected = item->property(BlockKey).isValid(); // an empty block is a valid one
    item->setProperty(BlockKey, QVariant::fromValue(block));
    if (!isConnected)
        QObject::connect(item, &QAction::triggered, item, [item] { choose(item); });
}

void ZEVMenuItemBlockAdditions::_performBlockAction(QAction *item)
{
    if (const Block block = ZEVMenuItemBlockAdditions::block(item))
        block(item);
}

QVariant ZEVMenuItemBlockAdditions::userInfo(const QAction *item) { return item->property(UserInfoKey); }

void ZEVMenuItemBlockAdditions::setUserInfo(QAction *item, const QVariant &userInfo)
{
    item->setProperty(UserInfoKey, userInfo);
}
