// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyValueCoding_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QMetaProperty>

namespace {

QVariant valueForKey(const QVariant &holder, const QString &key);

/// Always as long as the list.
QVariantList valuesOfElements(const QVariantList &elements, const QString &key)
{
    QVariantList values;
    for (const QVariant &element : elements)
        values.append(valueForKey(element, key));
    return values;
}

QVariant valueForKey(const QVariant &holder, const QString &key)
{
    if (holder.typeId() == QMetaType::QVariantMap)
        return holder.toMap().value(key);
    if (holder.typeId() == QMetaType::QVariantList)
        return valuesOfElements(holder.toList(), key);
    const auto *object = holder.value<QObject *>();
    return object ? object->property(key.toUtf8().constData()) : QVariant();
}

QObject *ownerOfLastKey(QObject *object, const QString &keyPath)
{
    const qsizetype dot = keyPath.lastIndexOf(u'.');
    if (dot < 0)
        return object;
    return ZEVKeyValueCoding::valueForKeyPath(object, keyPath.first(dot)).value<QObject *>();
}

QMetaProperty declaredProperty(const QObject *object, const QString &key)
{
    const int index = object ? object->metaObject()->indexOfProperty(key.toUtf8().constData()) : -1;
    return index < 0 ? QMetaProperty() : object->metaObject()->property(index);
}

} // namespace

QVariant ZEVKeyValueCoding::valueForKeyPath(const QObject *object, const QString &keyPath)
{
    QVariant value = QVariant::fromValue(const_cast<QObject *>(object));
    for (const QString &key : keyPath.split(u'.'))
        value = valueForKey(value, key);
    return value;
}

bool ZEVKeyValueCoding::setValue(QObject *object, const QVariant &value, const QString &keyPath)
{
    QObject *owner = ownerOfLastKey(object, keyPath);
    const QMetaProperty property = declaredProperty(owner, keyPath.section(u'.', -1));
    if (property.isValid() && property.write(owner, value))
        return true;
    qCWarning(zevLog).noquote() << "No property" << keyPath << "that takes" << value;
    return false;
}

bool ZEVKeyValueCoding::setNilValueForKey(QObject *object, const QString &key)
{
    if (object->metaObject()->indexOfMethod("setNilValueForKey(QString)") >= 0)
        return QMetaObject::invokeMethod(object, "setNilValueForKey", Q_ARG(QString, key));
    return declaredProperty(object, key).reset(object);
}

bool ZEVKeyValueCoding::isNil(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString().isNull();
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray().isNull();
    return value.isNull();
}
