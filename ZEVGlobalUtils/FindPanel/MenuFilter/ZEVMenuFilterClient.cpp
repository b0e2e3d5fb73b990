// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>

#include <QKeyEvent>
#include <QMenu>
#include <QWidgetAction>

namespace {

/// The menu's own way also opens a submenu, and closes all the menus up to the one that began.
void chooseByKey(QMenu *menu, QAction *item)
{
    menu->setActiveAction(item);
    menu->setFocus(Qt::PopupFocusReason);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    static_cast<QObject *>(menu)->event(&press);
}

} // namespace

ZEVMenuFilterClient::ZEVMenuFilterClient(ZEVMenuFilterViewController *filterViewController)
    : m_filterViewController(filterViewController)
{
}

ZEVMenuFilterClient::~ZEVMenuFilterClient() = default;

ZEVMenuFilterViewController *ZEVMenuFilterClient::filterViewController() const
{
    return m_filterViewController;
}

void ZEVMenuFilterClient::setFilterViewController(ZEVMenuFilterViewController *controller)
{
    m_filterViewController = controller;
}

void ZEVMenuFilterClient::filter()
{
    if (m_filterViewController)
        m_filteredItems = m_filterViewController->filteredItems(menuItems);
}

void ZEVMenuFilterClient::filterAgainstSearchString(const QString &string)
{
    if (m_filterViewController)
        m_filteredItems = m_filterViewController->filteredItems(menuItems, string);
}

void ZEVMenuFilterClient::filterDidChange(ZEVMenuFilterViewController *controller)
{
    filter();
    if (QMenu *menu = controller->menu())
        ZEVMenuItemScroller::scrollerOfMenu(menu)->setItemsAfter(controller->filterMenuItem(),
                                                                 m_filteredItems.value_or(menuItems));
}

std::optional<bool> ZEVMenuFilterClient::hasFilteredItems(ZEVMenuFilterViewController *)
{
    return m_filteredItems && !m_filteredItems->isEmpty();
}

bool ZEVMenuFilterClient::handleReturnKeyEvent(ZEVMenuFilterViewController *controller)
{
    if (!m_filteredItems || m_filteredItems->size() != 1)
        return false;
    QMenu *menu = controller->menu();
    if (QAction *item = menu ? menu->actions().value(1) : nullptr)
        chooseByKey(menu, item);
    return true;
}
