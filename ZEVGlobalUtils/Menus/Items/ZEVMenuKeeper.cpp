// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuKeeper_p.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QKeyEvent>
#include <QMenu>
#include <QPaintEvent>

#include <utility>

ZEVMenuKeeper *ZEVMenuKeeper::keeperOfMenu(QMenu *menu)
{
    auto *keeper = menu->findChild<ZEVMenuKeeper *>({}, Qt::FindDirectChildrenOnly);
    return keeper ? keeper : new ZEVMenuKeeper(menu);
}

ZEVMenuKeeper::ZEVMenuKeeper(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
{
    menu->installEventFilter(this);
}

ZEVMenuItemScroller *ZEVMenuKeeper::scroller()
{
    if (!m_scroller)
        m_scroller = new ZEVMenuItemScroller(m_menu);
    return m_scroller;
}

bool ZEVMenuKeeper::eventFilter(QObject * /*watched*/, QEvent *event)
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

void ZEVMenuKeeper::passKeyOn(QKeyEvent *event)
{
    if (!m_scroller || !m_scroller->moveByKey(event->key()))
        static_cast<QObject *>(m_menu)->event(event); // which is past all filters
}

void ZEVMenuKeeper::setBuilder(const ZEVMenuBuilder::Builder &builder)
{
    m_builder = builder;
    if (!std::exchange(m_isTold, true))
        connect(m_menu, &QMenu::aboutToShow, this, &ZEVMenuKeeper::build);
}

void ZEVMenuKeeper::build()
{
    if (const auto builder = m_builder) // which may set another one
        builder(m_menu);
}

void ZEVMenuBuilder::setMenuBuilder(QMenu *menu, const Builder &builder)
{
    ZEVMenuKeeper::keeperOfMenu(menu)->setBuilder(builder);
}

void ZEVMenuBuilder::buildMenu(QMenu *menu) { ZEVMenuKeeper::keeperOfMenu(menu)->build(); }

/// A menu is as wide as what is built into it, so that comes first.
void ZEVMenuBuilder::popUpMenu(QMenu *menu, const QWidget *view, QPoint place)
{
    buildMenu(menu);
    if (view->isRightToLeft())
        place.setX(view->width() - place.x() - menu->sizeHint().width());
    menu->popup(view->mapToGlobal(place));
}
