// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/ZEVTextFinderMenu.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderAction.h>
#include <ZEVGlobalUtils/Menus/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Transforms/ZEVGlobalHelper.h>

#include <QAction>
#include <QMenu>

using namespace ZEVTextFinderAction;

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
        {u"&Use Selection for Find", SetSearchString, {Qt::CTRL | Qt::Key_E}},
    };
}

void followMatches(QAction *item, ZEVTextFinder *finder)
{
    const auto update = [item, finder] { item->setEnabled(finder->validateAction(ZEVMenuItem::tag(item))); };
    QObject::connect(finder, &ZEVTextFinder::searchPerformed, item, update);
    update();
}

} // namespace

void ZEVTextFinderMenu::addItems(QMenu *menu, ZEVTextFinder *finder)
{
    for (const Entry &entry : entries()) {
        QAction *item = menu->addAction(ZEVGlobalHelper::localizedStringForKey(entry.title));
        ZEVMenuItem::setTag(item, entry.action);
        item->setShortcuts(entry.shortcuts);
        QObject::connect(item, &QAction::triggered, finder,
                         [item, finder] { finder->tryToPerformTextFinderAction(item); });
        QObject::connect(finder, &QObject::destroyed, item, &QObject::deleteLater);
        // Whether a selection can be used depends on the focus: such an item is not greyed, and does nothing.
        if (entry.action == NextMatch || entry.action == PreviousMatch)
            followMatches(item, finder);
    }
}
