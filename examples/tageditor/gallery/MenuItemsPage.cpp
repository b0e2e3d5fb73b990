// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/MenuItemsPage.h>

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVWorkspaceOpenWithMenu.h>

#include <QDir>
#include <QHBoxLayout>
#include <QMenu>
#include <QStyle>
#include <QWidgetAction>

using namespace Qt::StringLiterals;
using namespace ZEVMenuItemBlockAdditions;
using namespace ZEVMenuItemHeadings;

namespace {

/// A menu as a part of its parent, since a real one would close at the next click elsewhere.
QMenu *openMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setWindowFlags(Qt::Widget);
    return menu;
}

QAction *patternItem(const QVariantList &pattern, QMenu *menu)
{
    QAction *item = itemWithTitle(QString(), menu);
    ZEVMenuItem::setAttributedTitle(item, ZEVArrayPatternDisplaySupport::patternDisplayString(pattern));
    ZEVMenuItem::setIndentationLevel(item, 1);
    return item;
}

void addPatterns(QMenu *menu)
{
    const QVariant digits = QVariant::fromValue(ZEVPatternItem::digits());
    const QVariant word = QVariant::fromValue(ZEVPatternItem::anyWord());
    menu->addAction(headingItemWithTitle(u"Saved Patterns"_s, menu));
    QAction *underPointer = patternItem({u"Track "_s, digits, u" & "_s, word}, menu);
    QAction *disabled = patternItem({word, u", "_s, word}, menu);
    disabled->setEnabled(false);
    menu->addActions({underPointer, patternItem({digits, u". "_s}, menu), disabled});
    menu->setActiveAction(underPointer);
}

QMenu *mixedMenu(QWidget *parent)
{
    QMenu *menu = openMenu(parent);
    menu->addAction(headingItemWithTitle(u"Artwork & Tags"_s, menu));
    QAction *copy = itemWithTitle(u"Copy & Paste"_s, QKeySequence::Copy, {}, menu);
    copy->setIcon(menu->style()->standardIcon(QStyle::SP_FileIcon));
    QAction *checked = itemWithTitle(u"Checked"_s, menu);
    ZEVMenuItem::setState(checked, ZEVMenuItem::On);
    QAction *submenu = menu->addMenu(u"Submenu"_s)->menuAction();
    menu->addActions({copy, checked, disabledItemWithTitle(u"Disabled"_s, menu), submenu});
    menu->addAction(ZEVMenuItemRemoveAllFollowing::spacerItemWithHeight(12, menu));
    for (int level = 0; level < 4; ++level) {
        QAction *item = menu->addAction(u"Indented %1"_s.arg(level));
        ZEVMenuItem::setIndentationLevel(item, level);
    }
    menu->addAction(headingItemWithTitle(u"With leading space"_s, true, menu));
    addPatterns(menu);
    ZEVMenuItem::setState(menu->actions().last(), ZEVMenuItem::On);
    menu->actions().last()->setShortcut(QKeySequence(u"Ctrl+1"_s));
    return menu;
}

/// As token fields show it: small, of patterns alone.
QMenu *patternMenu(QWidget *parent)
{
    QMenu *menu = openMenu(parent);
    QFont font = menu->font();
    font.setPixelSize(11);
    menu->setFont(font);
    addPatterns(menu);
    return menu;
}

/// A filter with its more button, above some of very many items.
QMenu *filteredMenu(QWidget *parent)
{
    QMenu *menu = openMenu(parent);
    auto *filter = new ZEVMenuFilterViewController(ZEVControlSize::Small, menu);
    menu->addActions({filter->filterMenuItem(), filter->moreMenuItem()});
    QList<QAction *> items;
    for (int number = 1; number <= 200; ++number)
        items << itemWithTitle(u"Genre %1"_s.arg(number), menu);
    ZEVMenuItemScroller::scrollerOfMenu(menu)->setItemsAfter(filter->moreMenuItem(), items.first(12));
    return menu;
}

/// With a folder that is there, one of the same name, and the selected one.
ZEVURLPopUpButton *locations(QWidget *parent)
{
    auto *button = new ZEVURLPopUpButton(parent);
    for (const QString &path : {QDir::tempPath(), u"/usr/share"_s, u"/usr/lib"_s})
        button->setURL(QUrl::fromLocalFile(path));
    return button;
}

/// The menu of \a button as it opens, and the button.
QWidget *withOpenMenu(ZEVURLPopUpButton *button)
{
    auto *column = new QWidget(button->parentWidget());
    auto *rows = new QVBoxLayout(column);
    rows->addWidget(button);
    QMenu *menu = button->menu();
    menu->setWindowFlags(Qt::Widget);
    menu->setParent(column);
    rows->addWidget(menu);
    return column;
}

/// The applications of this desktop for a track.
QMenu *openWithMenu(QWidget *parent)
{
    QMenu *menu = openMenu(parent);
    ZEVWorkspaceOpenWithMenu::setupMenu(menu, {QUrl::fromLocalFile(u"/track.flac"_s)});
    return menu;
}

} // namespace

QWidget *menuItemsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *rows = new QVBoxLayout(page);
    auto *menus = new QHBoxLayout;
    for (QMenu *menu : {mixedMenu(page), patternMenu(page), filteredMenu(page)})
        menus->addWidget(menu, 0, Qt::AlignTop);
    menus->addStretch();
    auto *popUps = new QHBoxLayout;
    popUps->addWidget(withOpenMenu(locations(page)), 0, Qt::AlignTop);
    popUps->addWidget(openWithMenu(page), 0, Qt::AlignTop);
    popUps->addStretch();
    rows->addLayout(menus);
    rows->addLayout(popUps);
    rows->addStretch();
    return page;
}
