// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVResponder.h>

#include <QMetaMethod>

namespace {

bool isAction(const QMetaMethod &method, const QByteArray &selector)
{
    return method.methodType() != QMetaMethod::Signal && method.methodType() != QMetaMethod::Constructor
        && method.name() == selector;
}

/// False where the method does not take the argument.
bool call(QObject *receiver, const QMetaMethod &method, const QVariant &object)
{
    if (method.parameterCount() == 0)
        return method.invoke(receiver, Qt::DirectConnection);
    if (method.parameterCount() != 1)
        return false;
    const QMetaType type = method.parameterMetaType(0);
    QVariant argument = object;
    if (type == QMetaType::fromType<QVariant>())
        return method.invoke(receiver, Qt::DirectConnection, Q_ARG(QVariant, argument));
    if (argument.metaType() != type && !argument.convert(type))
        return false;
    return method.invoke(receiver, Qt::DirectConnection, QGenericArgument(type.name(), argument.constData()));
}

/// What an heir declares goes before what it inherits.
bool perform(QObject *receiver, const QByteArray &selector, const QVariant &object)
{
    const QMetaObject *metaObject = receiver->metaObject();
    for (int n = metaObject->methodCount() - 1; n >= 0; --n) {
        const QMetaMethod method = metaObject->method(n);
        if (isAction(method, selector) && call(receiver, method, object))
            return true;
    }
    return false;
}

} // namespace

bool ZEVResponder::tryToPerform(QObject *responder, const QByteArray &selector, const QVariant &object)
{
    for (; responder; responder = responder->parent()) {
        if (perform(responder, selector, object))
            return true;
    }
    return false;
}
