// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <memory>

/// Tells a target when the value of a key path changes, for as long as it lives. Holds neither of the two,
/// and either may go first. Sees a property change by its NOTIFY signal; a key path goes on to be observed
/// when an object on the way is replaced.
class ZEV_EXPORT ZEVKeyValueObserver : public QObject {
    Q_OBJECT

public:
    /// What the change has beside "kind", which is 1 (a setting): "new" and "old", invalid for nil and for an
    /// object that has gone. Initial performs the action at once, without "old".
    enum Option { None = 0, New = 1, Old = 2, Initial = 4 };
    Q_DECLARE_FLAGS(Options, Option)

    /// The action is a slot or invokable method that takes the change (a QVariantMap) or nothing. It is sent
    /// up the chain that begins with \a target (see ZEVResponder), on the thread that made the change, and
    /// may delete the observer. Null for a null \a object.
    static std::unique_ptr<ZEVKeyValueObserver> observeObject(QObject *object, const QString &keyPath,
                                                              QObject *target, const QByteArray &selector,
                                                              Options options = None);

    QObject *target() const { return m_target; }
    const QByteArray &selector() const { return m_selector; }
    QObject *observedObject() const { return m_observedObject; }
    const QString &keyPath() const { return m_keyPath; }

private Q_SLOTS:
    void observeValue();

private:
    ZEVKeyValueObserver(QObject *object, const QString &keyPath, QObject *target, const QByteArray &selector,
                        Options options);
    void connectKeyPath();
    QVariant exchangeValue();
    void performAction(QVariantMap change);

    QPointer<QObject> m_target;
    QByteArray m_selector;
    QPointer<QObject> m_observedObject;
    QString m_keyPath;
    Options m_options;
    QList<QMetaObject::Connection> m_connections;
    QVariant m_value;
    QPointer<QObject> m_valueObject; ///< where the value is an object, which may go
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZEVKeyValueObserver::Options)
