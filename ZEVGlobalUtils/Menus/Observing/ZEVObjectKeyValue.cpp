// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectKeyValue.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyValueCoding_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

using namespace ZEVKeyValueCoding;

void ZEVObjectKeyValue::setValue(QObject *object, const QVariant &value, const QStringList &keys)
{
    for (const QString &key : keys)
        ZEVKeyValueCoding::setValue(object, value, key);
}

void ZEVObjectKeyValue::setUndefinedValue(QObject *object, const QVariant &value, const QString &keyPath)
{
    if (isNil(valueForKeyPath(object, keyPath)))
        ZEVKeyValueCoding::setValue(object, value, keyPath);
}

void ZEVObjectKeyValue::setUndefinedValuesForKeysWithDictionary(QObject *object, const QVariantMap &values)
{
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!isNil(valueForKeyPath(object, value.key())))
            continue;
        if (value->isNull())
            setNilValueForKey(object, value.key());
        else
            ZEVKeyValueCoding::setValue(object, *value, value.key());
    }
}

bool ZEVObjectKeyValue::hasValueForKeyPath(const QObject *object, const QString &keyPath)
{
    const auto entries = ZEVVariantValues::objects(valueForKeyPath(object, keyPath));
    return entries && !entries->isEmpty()
        && (entries->size() > 1 || !ZEVVariantValues::isNil(entries->first()));
}
