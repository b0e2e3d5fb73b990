// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectUserDefaultsBindings.h>

#include <QMetaProperty>
#include <QObject>

/// The link between one property of its parent and one key of the user defaults.
class ZEVUserDefaultsBinding : public QObject {
    Q_OBJECT

public:
    ZEVUserDefaultsBinding(QObject *object, const QMetaProperty &property, const QString &key,
                           const ZEVObjectUserDefaultsBindings::BindingOptions &options);

    void readStoredValue();

private Q_SLOTS:
    void storeProperty();

private:
    QMetaProperty m_property;
    QString m_key;
    ZEVObjectUserDefaultsBindings::BindingOptions m_options;
};
