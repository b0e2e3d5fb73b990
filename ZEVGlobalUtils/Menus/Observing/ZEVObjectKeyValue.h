// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariantMap>

class QObject;

/// Sets many of an object's properties, or those that are missing. Keys and key paths as in
/// ZEVKeyValueCoding.
namespace ZEVObjectKeyValue {

/// In the order of \a keys.
ZEV_EXPORT void setValue(QObject *object, const QVariant &value, const QStringList &keys);

/// Only when the key path yields nil.
ZEV_EXPORT void setUndefinedValue(QObject *object, const QVariant &value, const QString &keyPath);

/// Only the keys that are nil. A null pointer among the values asks for setNilValueForKey.
ZEV_EXPORT void setUndefinedValuesForKeysWithDictionary(QObject *object, const QVariantMap &values);

/// Whether the key path yields a collection (a map's entries are its values) with a value in it: two entries
/// count whatever they are, a single one unless it is null: a null pointer, object or string. False for what is
/// no collection.
ZEV_EXPORT bool hasValueForKeyPath(const QObject *object, const QString &keyPath);

} // namespace ZEVObjectKeyValue
