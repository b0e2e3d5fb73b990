// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterDelegate.h>

#include <QCoreApplication>
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
    if (QMenu *holder = menu())
        holder->installEventFilter(this);
    if (!m_autofocus)
        return;
    m_searchField->selectAll();
    m_searchField->setFocus(Qt::PopupFocusReason);
}

bool ZEVMenuFilterViewController::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (watched == m_searchField)
        return isKey && keyInField(static_cast<QKeyEvent *>(event)->key());
    if (watched != menu())
        return false;
    return isKey && keyInMenu(static_cast<QKeyEvent *>(event));
}

bool ZEVMenuFilterViewController::keyInField(int key)
{
    if (isReturn(key))
        return m_delegate && m_delegate->handleReturnKeyEvent(this);
    if (key == Qt::Key_Down || key == Qt::Key_Tab)
        return leaveField(Qt::Key_Down);
    if (key == Qt::Key_Backtab)
        return leaveField(Qt::Key_Up);
    return key == Qt::Key_Escape && clearByKey();
}

/// The menu moves on from the filter's item, with the same key.
bool ZEVMenuFilterViewController::leaveField(int key)
{
    QMenu *holder = menu();
    if (!holder || (m_delegate && !m_delegate->hasFilteredItems(this).value_or(true)))
        return true;
    holder->setActiveAction(m_filterMenuItem);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(holder, &press);
    return true;
}

/// The field has seen the key first, when it has the focus.
bool ZEVMenuFilterViewController::keyInMenu(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return clearByKey();
    if (m_searchField->hasFocus())
        return isReturn(event->key()); // not the item that happens to be under the pointer
    if (!isTyping(*event))
        return false;
    m_searchField->setFocus(Qt::OtherFocusReason);
    m_searchField->deselect();
    QCoreApplication::sendEvent(m_searchField, event);
    return true;
}

bool ZEVMenuFilterViewController::clearByKey()
{
    if (needle().isEmpty())
        return false;
    clearFilterAndNotifyDelegate();
    m_searchField->setFocus(Qt::OtherFocusReason);
    return true;
}
