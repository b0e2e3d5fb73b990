// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/MenuKeeper_p.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QKeyEvent>
#include <QMenu>
#include <QPaintEvent>

#include <utility>

MenuKeeper *MenuKeeper::keeperOfMenu(QMenu *menu)
{
    auto *keeper = menu->findChild<MenuKeeper *>({}, Qt::FindDirectChildrenOnly);
    return keeper ? keeper : new MenuKeeper(menu);
}

MenuKeeper::MenuKeeper(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
{
    menu->installEventFilter(this);
}

ZEVMenuItemScroller *MenuKeeper::scroller()
{
    if (!m_scroller)
        m_scroller = new ZEVMenuItemScroller(m_menu);
    return m_scroller;
}

bool MenuKeeper::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Paint:
        return ZEVMenuTitleDrawing::paint(m_menu, static_cast<QPaintEvent *>(event));
    case QEvent::KeyPress:
        return (m_keyFilter && m_keyFilter(static_cast<QKeyEvent *>(event)))
            || (m_scroller && m_scroller->moveByKey(static_cast<QKeyEvent *>(event)->key()));
    case QEvent::Wheel:
        return m_scroller && m_scroller->turnWheel(event);
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::Hide:
        if (m_scroller)
            m_scroller->menuChanged(event->type());
        return false;
    default:
        return false;
    }
}

void MenuKeeper::passKeyOn(QKeyEvent *event)
{
    if (!m_scroller || !m_scroller->moveByKey(event->key()))
        static_cast<QObject *>(m_menu)->event(event); // which is past all filters
}

void MenuKeeper::setBuilder(const ZEVMenuBuilder::Builder &builder)
{
    m_builder = builder;
    if (!std::exchange(m_isTold, true))
        connect(m_menu, &QMenu::aboutToShow, this, &MenuKeeper::build);
}

void MenuKeeper::build()
{
    if (const auto builder = m_builder) // which may set another one
        builder(m_menu);
}

void ZEVMenuBuilder::setMenuBuilder(QMenu *menu, const Builder &builder)
{
    MenuKeeper::keeperOfMenu(menu)->setBuilder(builder);
}

void ZEVMenuBuilder::buildMenu(QMenu *menu) { MenuKeeper::keeperOfMenu(menu)->build(); }

/// A menu is as wide as what is built into it, so that comes first.
void ZEVMenuBuilder::popUpMenu(QMenu *menu, const QWidget *view, QPoint place)
{
    buildMenu(menu);
    if (view->isRightToLeft())
        place.setX(view->width() - place.x() - menu->sizeHint().width());
    menu->popup(view->mapToGlobal(place));
}
