// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderMenu.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QAction>
#include <QMenu>
#include <QPointer>

using namespace ZEVFindActionNumber;

namespace {

struct Entry {
    const char16_t *title;
    qint64 action;
    QList<QKeySequence> shortcuts;
};

/// Where desktops differ, both of their keys work.
QList<Entry> entries()
{
    return {
        {u"&Find…", ShowFindInterface, {Qt::CTRL | Qt::Key_F}},
        {u"Find and &Replace…", ShowReplaceInterface, {Qt::CTRL | Qt::Key_H, Qt::CTRL | Qt::Key_R}},
        {u"Find &Next", NextMatch, {Qt::CTRL | Qt::Key_G, Qt::Key_F3}},
        {u"Find &Previous", PreviousMatch, {Qt::CTRL | Qt::SHIFT | Qt::Key_G, Qt::SHIFT | Qt::Key_F3}},
        {u"Use &Selection for Find", SetSearchString, {Qt::CTRL | Qt::Key_E}},
    };
}

using FinderSource = std::function<ZEVTextFinder *()>;

QList<QAction *> addItemsFor(QMenu *menu, const FinderSource &finder)
{
    QList<QAction *> items;
    for (const Entry &entry : entries()) {
        QAction *item = menu->addAction(ZEVGlobalHelper::localizedStringForKey(entry.title));
        ZEVMenuItem::setTag(item, entry.action);
        item->setShortcuts(entry.shortcuts);
        QObject::connect(item, &QAction::triggered, item, [item, finder] {
            if (ZEVTextFinder *current = finder())
                current->tryToPerformTextFinderAction(item);
        });
        items.append(item);
    }
    return items;
}

/// Whether a selection can be used depends on the focus: such an item is not greyed, and does nothing.
bool dependsOnMatches(const QAction *item)
{
    const qint64 action = ZEVMenuItem::tag(item);
    return action == NextMatch || action == PreviousMatch;
}

void update(QAction *item, ZEVTextFinder *finder)
{
    if (dependsOnMatches(item))
        item->setEnabled(finder && finder->validateAction(ZEVMenuItem::tag(item)));
}

} // namespace

void ZEVTextFinderMenu::addItems(QMenu *menu, ZEVTextFinder *finder)
{
    for (QAction *item : addItemsFor(menu, [guard = QPointer(finder)] { return guard.data(); })) {
        QObject::connect(finder, &QObject::destroyed, item, &QObject::deleteLater);
        QObject::connect(finder, &ZEVTextFinder::searchPerformed, item,
                         [item, finder] { update(item, finder); });
        update(item, finder);
    }
}

/// Only an open menu shows what is possible: the shortcuts must reach a finder that nobody has asked yet.
void ZEVTextFinderMenu::addItems(QMenu *menu, const FinderSource &finder)
{
    for (QAction *item : addItemsFor(menu, finder)) {
        QObject::connect(menu, &QMenu::aboutToShow, item, [item, finder] { update(item, finder()); });
        QObject::connect(menu, &QMenu::aboutToHide, item, [item] { item->setEnabled(true); });
    }
}
