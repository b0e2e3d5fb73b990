// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVKeyValueObserver.h>

#include <ZEVGlobalUtils/Menus/Observing/ZEVResponder.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyValueCoding_p.h>

#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace {

constexpr int SettingKind = 1;

bool isObject(const QVariant &value) { return value.metaType().flags() & QMetaType::PointerToQObject; }

} // namespace

std::unique_ptr<ZEVKeyValueObserver>
ZEVKeyValueObserver::observeObject(QObject *object, const QString &keyPath, QObject *target,
                                   const QByteArray &selector, Options options)
{
    if (!object)
        return nullptr;
    std::unique_ptr<ZEVKeyValueObserver> observer(
        new ZEVKeyValueObserver(object, keyPath, target, selector, options));
    if (options & Initial)
        observer->performAction({});
    return observer;
}

ZEVKeyValueObserver::ZEVKeyValueObserver(QObject *object, const QString &keyPath, QObject *target,
                                         const QByteArray &selector, Options options)
    : m_target(target)
    , m_selector(selector)
    , m_observedObject(object)
    , m_keyPath(keyPath)
    , m_options(options)
{
    connectKeyPath();
    exchangeValue();
}

/// To every object on the way, as far as it leads now.
void ZEVKeyValueObserver::connectKeyPath()
{
    static const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("observeValue()"));
    for (const QMetaObject::Connection &connection : std::exchange(m_connections, {}))
        disconnect(connection);
    QObject *object = m_observedObject;
    for (const QString &key : m_keyPath.split(u'.')) {
        if (!object)
            return;
        const int index = object->metaObject()->indexOfProperty(key.toUtf8().constData());
        const QMetaProperty property = object->metaObject()->property(index);
        if (property.hasNotifySignal())
            m_connections += connect(object, property.notifySignal(), this, slot, Qt::DirectConnection);
        object = ZEVKeyValueCoding::valueForKeyPath(object, key).value<QObject *>();
    }
}

/// Remembers the present value and returns the one before.
QVariant ZEVKeyValueObserver::exchangeValue()
{
    const bool hasGone = isObject(m_value) && !m_valueObject;
    QVariant old = hasGone ? QVariant() : m_value;
    m_value = ZEVKeyValueCoding::valueForKeyPath(m_observedObject, m_keyPath);
    m_valueObject = isObject(m_value) ? m_value.value<QObject *>() : nullptr;
    return old;
}

void ZEVKeyValueObserver::observeValue()
{
    connectKeyPath();
    const QVariant old = exchangeValue();
    performAction(m_options & Old ? QVariantMap{{u"old"_s, old}} : QVariantMap());
}

/// The last that is done on each way here, for the action may delete the observer.
void ZEVKeyValueObserver::performAction(QVariantMap change)
{
    change.insert(u"kind"_s, SettingKind);
    if (m_options & New)
        change.insert(u"new"_s, m_value);
    const QByteArray selector = m_selector;
    ZEVResponder::tryToPerform(m_target, selector, change);
}
