// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectUserDefaultsBindings.h>

#include <ZEVGlobalUtils/Menus/Observing/ZEVUserDefaultsBinding_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

using ZEVObjectUserDefaultsBindings::BindingOptions;

ZEVUserDefaultsBinding::ZEVUserDefaultsBinding(QObject *object, const QMetaProperty &property,
                                               const QString &key, const BindingOptions &options)
    : QObject(object)
    , m_property(property)
    , m_key(key)
    , m_options(options)
{
    static const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("storeProperty()"));
    auto *defaults = ZEVUserDefaults::standardUserDefaults();
    connect(defaults, &ZEVUserDefaults::didChange, this, [this](const QString &changed) {
        if (changed == m_key)
            readStoredValue();
    });
    if (property.hasNotifySignal())
        connect(object, property.notifySignal(), this, slot);
}

/// What is alike already ends the round that a change makes. The property's setter may delete the object, and
/// the binding with it.
void ZEVUserDefaultsBinding::readStoredValue()
{
    const QVariant stored = ZEVUserDefaults::standardUserDefaults()->objectForKey(m_key);
    const QVariant shown = m_options.valueTransformer && stored.isValid()
        ? m_options.valueTransformer->transformedValue(stored)
        : stored;
    const QVariant value = shown.isValid() ? shown : m_options.nullPlaceholder;
    const QString key = m_key;
    if (value.isValid() && value != m_property.read(parent()) && !m_property.write(parent(), value))
        qCWarning(zevLog).noquote() << "The user defaults hold no fitting value for" << key;
}

void ZEVUserDefaultsBinding::storeProperty()
{
    const QVariant read = m_property.read(parent());
    const QVariant value = m_property.isEnumType() ? read.toInt() : read;
    const ZEVValueTransformer *transformer = m_options.valueTransformer.get();
    if (transformer && !transformer->allowsReverseTransformation())
        return;
    ZEVUserDefaults::standardUserDefaults()->setObject(
        transformer ? transformer->reverseTransformedValue(value) : value, m_key);
}

bool ZEVObjectUserDefaultsBindings::bind(QObject *object, const QString &binding,
                                         const QString &toUserDefaultsWithKey, const BindingOptions &options)
{
    unbind(object, binding);
    const int index = object->metaObject()->indexOfProperty(binding.toUtf8().constData());
    if (index < 0)
        return false;
    auto *bound = new ZEVUserDefaultsBinding(object, object->metaObject()->property(index),
                                             toUserDefaultsWithKey, options);
    bound->setObjectName(binding);
    bound->readStoredValue();
    return true;
}

void ZEVObjectUserDefaultsBindings::unbindFromUserDefaults(QObject *, const QString &binding)
{
    unbind(ZEVUserDefaults::standardUserDefaults(), binding);
}

void ZEVObjectUserDefaultsBindings::unbind(QObject *object, const QString &binding)
{
    delete object->findChild<ZEVUserDefaultsBinding *>(binding, Qt::FindDirectChildrenOnly);
}
