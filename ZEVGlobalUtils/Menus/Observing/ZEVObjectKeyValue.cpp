// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectKeyValue.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyValueCoding_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

#include <QAssociativeIterable>

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

namespace {

/// Nil for what is no collection.
std::optional<QVariantList> entries(const QVariant &collection)
{
    if (!collection.canConvert<QAssociativeIterable>())
        return ZEVVariantValues::objects(collection);
    QVariantList values;
    const auto map = collection.value<QAssociativeIterable>();
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        values.append(entry.value());
    return values;
}

bool isNull(const QVariant &entry)
{
    return isNil(entry) || entry.isNull()
        || (entry.typeId() == QMetaType::QString && entry.toString().isNull());
}

} // namespace

bool ZEVObjectKeyValue::hasValueForKeyPath(const QObject *object, const QString &keyPath)
{
    const auto values = entries(valueForKeyPath(object, keyPath));
    return values && !values->isEmpty() && (values->size() > 1 || !isNull(values->first()));
}
