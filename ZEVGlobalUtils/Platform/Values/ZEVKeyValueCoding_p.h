// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

class QObject;

/// Values by the names of Qt properties, and by key paths: names that dots join, each of them a property of
/// the object (or a key of the map) that the one before it holds.
namespace ZEVKeyValueCoding {

/// Nil (an invalid variant) where an object on the way is null or has no such property. A key of a list is
/// the list of its elements' values, in which a null pointer stands for nil.
QVariant valueForKeyPath(const QObject *object, const QString &keyPath);

/// False where there is no such property, or it does not take \a value; nothing has changed then.
bool setValue(QObject *object, const QVariant &value, const QString &keyPath);

/// Calls the object's own invokable setNilValueForKey(QString), else resets the property. False where it has
/// neither.
bool setNilValueForKey(QObject *object, const QString &key);

/// An invalid variant, a null pointer, and what Qt's properties hold for no value: a null string, null bytes.
bool isNil(const QVariant &value);

} // namespace ZEVKeyValueCoding
