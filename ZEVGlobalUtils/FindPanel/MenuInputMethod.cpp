// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuInputMethod_p.h>

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

MenuInputMethod::MenuInputMethod(QWidget *field)
    : QObject(field)
    , m_field(field)
{
}

void MenuInputMethod::begin()
{
    end();
    QObject *focusObject = QGuiApplication::focusObject();
    const auto *widget = qobject_cast<QWidget *>(focusObject);
    if (!widget || widget->window() == m_field->window())
        return;
    QGuiApplication::inputMethod()->commit(); // what was begun belongs to where it was begun
    m_focusObject = focusObject;
    focusObject->installEventFilter(this);
    QGuiApplication::inputMethod()->update(Qt::ImQueryAll);
}

void MenuInputMethod::end()
{
    if (!m_focusObject)
        return;
    QGuiApplication::inputMethod()->reset();
    m_focusObject->removeEventFilter(this);
    m_focusObject.clear();
    QGuiApplication::inputMethod()->update(Qt::ImQueryAll);
}

bool MenuInputMethod::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_focusObject || !m_field->isVisible() || !m_field->hasFocus())
        return false;
    if (event->type() == QEvent::InputMethod)
        return QCoreApplication::sendEvent(m_field, event);
    if (event->type() != QEvent::InputMethodQuery)
        return false;
    answer(watched, event);
    return true;
}

/// As the field would, but with its places in the coordinates of the widget that was asked.
void MenuInputMethod::answer(QObject *asked, QEvent *event) const
{
    auto *query = static_cast<QInputMethodQueryEvent *>(event);
    QCoreApplication::sendEvent(m_field, query);
    const auto *widget = static_cast<QWidget *>(asked);
    const QPoint offset = widget->mapFromGlobal(m_field->mapToGlobal(QPoint()));
    for (const auto place : {Qt::ImCursorRectangle, Qt::ImAnchorRectangle, Qt::ImInputItemClipRectangle}) {
        if (query->queries() & place)
            query->setValue(place, query->value(place).toRectF().translated(offset));
    }
}
