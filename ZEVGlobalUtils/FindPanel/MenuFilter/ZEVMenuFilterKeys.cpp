// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterDelegate.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuKeeper_p.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace {

bool isReturn(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

/// What goes into the field, even while an item of the menu is reached.
bool isTyping(const QKeyEvent &event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QString text = event.text();
    return event.key() == Qt::Key_Backspace
        || (!text.isEmpty() && text.front().isPrint() && !text.front().isSpace());
}

} // namespace

void ZEVMenuFilterViewController::viewDidShow()
{
    watchKeysOfMenu();
    if (!m_autofocus)
        return;
    m_searchField->selectAll();
    m_searchField->setFocus(Qt::PopupFocusReason);
}

void ZEVMenuFilterViewController::watchKeysOfMenu()
{
    if (m_keptMenu == menu())
        return;
    if (m_keptMenu)
        ZEVMenuKeeper::keeperOfMenu(m_keptMenu)->setKeyFilter({});
    m_keptMenu = menu();
    const QPointer guard(this);
    if (m_keptMenu)
        ZEVMenuKeeper::keeperOfMenu(m_keptMenu)->setKeyFilter([guard](QKeyEvent *event) {
            return guard && guard->menu() == guard->m_keptMenu && guard->keyInMenu(event);
        });
}

bool ZEVMenuFilterViewController::eventFilter(QObject *watched, QEvent *event)
{
    return watched == m_searchField && event->type() == QEvent::KeyPress
        && keyInField(static_cast<QKeyEvent *>(event));
}

bool ZEVMenuFilterViewController::keyInField(QKeyEvent *event)
{
    if (isReturn(event->key()))
        return m_delegate && m_delegate->handleReturnKeyEvent(this);
    if (event->key() == Qt::Key_Down)
        return leaveField(event);
    return event->key() == Qt::Key_Escape && clearByKey();
}

/// The menu moves on from the filter's item, with the same key. Where nobody knows of items, the key is none of
/// the filter's.
bool ZEVMenuFilterViewController::leaveField(QKeyEvent *event)
{
    const QPointer guard(this);
    QMenu *holder = menu();
    const std::optional<bool> hasItems = m_delegate ? m_delegate->hasFilteredItems(this) : std::nullopt;
    if (guard && hasItems.value_or(false) && holder) {
        holder->setActiveAction(m_filterMenuItem);
        ZEVMenuKeeper::keeperOfMenu(holder)->passKeyOn(event);
    }
    return hasItems.has_value();
}

/// The field has seen the key first, when it has the focus.
bool ZEVMenuFilterViewController::keyInMenu(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return clearByKey();
    if (m_searchField->hasFocus()) {
        if (event->key() == Qt::Key_Down)
            menu()->setActiveAction(m_filterMenuItem); // the menu moves on from here
        return isReturn(event->key()); // not the item that happens to be under the pointer
    }
    if (!isTyping(*event))
        return false;
    m_searchField->setFocus(Qt::OtherFocusReason);
    m_searchField->deselect();
    static_cast<QObject *>(m_searchField)->event(event);
    return true;
}

bool ZEVMenuFilterViewController::clearByKey()
{
    if (needle().isEmpty())
        return false;
    const QPointer guard(this);
    clearFilterAndNotifyDelegate();
    if (guard)
        m_searchField->setFocus(Qt::OtherFocusReason);
    return true;
}
