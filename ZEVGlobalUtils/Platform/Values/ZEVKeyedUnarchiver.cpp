// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVArchiveFormat_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUnreadableObject.h>

#include <QCborArray>
#include <QHash>
#include <QReadWriteLock>
#include <QtEndian>

namespace {

struct Registry {
    QReadWriteLock lock;
    QHash<QString, ZEVKeyedUnarchiver::Maker> makers;
};

Registry &registry()
{
    static Registry shared;
    return shared;
}

/// Undefined for foreign or damaged bytes.
QCborValue rootOfArchive(const QByteArray &archive)
{
    QCborParserError error;
    const QCborMap envelope = QCborValue::fromCbor(archive, &error).toMap();
    if (error.error || error.offset != archive.size()
        || envelope.value(ZEVArchiveFormat::NameKey) != ZEVArchiveFormat::Name)
        return QCborValue::Undefined;
    return envelope.value(ZEVArchiveFormat::RootKey);
}

} // namespace

void ZEVKeyedUnarchiver::registerClass(const QString &name, const Maker &maker)
{
    const QWriteLocker locker(&registry().lock);
    registry().makers.insert(name, maker);
}

QVariant ZEVKeyedUnarchiver::unarchivedObject(const QByteArray &archive)
{
    ZEVKeyedUnarchiver unarchiver({}, 0);
    const QVariant object = unarchiver.decodedValue(rootOfArchive(archive));
    return unarchiver.m_failed ? QVariant() : object;
}

QVariantList ZEVKeyedUnarchiver::unarchivedElements(const QByteArray &archive)
{
    QVariantList elements;
    for (const auto &element : rootOfArchive(archive).toArray()) {
        ZEVKeyedUnarchiver unarchiver({}, 0);
        const QVariant object = unarchiver.decodedValue(element);
        elements.append(unarchiver.m_failed ? QVariant::fromValue(ZEVUnreadableObject{QCborValue(element)})
                                            : object);
    }
    return elements;
}

QVariant ZEVKeyedUnarchiver::decodeObject(QStringView key)
{
    const QCborValue value = m_fields.value(key.toString());
    return value.isUndefined() ? QVariant() : decodedValue(value);
}

std::optional<QString> ZEVKeyedUnarchiver::decodeString(QStringView key)
{
    const QVariant value = decodeObject(key);
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (value.isValid())
        failDecoding();
    return std::nullopt;
}

std::optional<QVariantList> ZEVKeyedUnarchiver::decodeList(QStringView key)
{
    const QVariant value = decodeObject(key);
    if (value.typeId() == QMetaType::QVariantList)
        return value.toList();
    if (value.isValid())
        failDecoding();
    return std::nullopt;
}

bool ZEVKeyedUnarchiver::decodeBool(QStringView key)
{
    const QCborValue value = m_fields.value(key.toString());
    if (!value.isUndefined() && !value.isBool())
        failDecoding();
    return value.toBool();
}

QVariant ZEVKeyedUnarchiver::failed()
{
    failDecoding();
    return {};
}

QVariant ZEVKeyedUnarchiver::decodedValue(const QCborValue &value)
{
    if (m_depth >= ZEVArchiveFormat::MaximumDepth)
        return failed();
    ++m_depth;
    QVariant object;
    if (value.isMap())
        object = decodedMap(value.toMap());
    else if (value.isArray())
        object = decodedElements(value.toArray());
    else if (ZEVArchiveFormat::isScalar(value))
        object = value.toVariant();
    else if (!value.isNull() && !value.isUndefined())
        failDecoding();
    --m_depth;
    return object;
}

QVariant ZEVKeyedUnarchiver::decodedMap(const QCborMap &map)
{
    if (map.contains(ZEVArchiveFormat::ClassKey))
        return decodedObject(map);
    if (map.contains(ZEVArchiveFormat::MapKey))
        return decodedEntries(map.value(ZEVArchiveFormat::MapKey));
    return decodedUnits(map.value(ZEVArchiveFormat::UnitsKey));
}

QVariant ZEVKeyedUnarchiver::decodedObject(const QCborMap &fields)
{
    registry().lock.lockForRead();
    const Maker maker = registry().makers.value(fields.value(ZEVArchiveFormat::ClassKey).toString());
    registry().lock.unlock();
    if (!maker)
        return failed();
    ZEVKeyedUnarchiver unarchiver(fields, m_depth);
    const QVariant object = maker(unarchiver);
    return unarchiver.m_failed ? failed() : object;
}

QVariantList ZEVKeyedUnarchiver::decodedElements(const QCborArray &array)
{
    QVariantList elements;
    elements.reserve(array.size());
    for (const auto &element : array)
        elements.append(decodedValue(element));
    return elements;
}

QVariant ZEVKeyedUnarchiver::decodedEntries(const QCborValue &entries)
{
    const QVariantList keysAndValues = decodedElements(entries.toArray());
    if (!entries.isArray() || keysAndValues.size() % 2 != 0)
        return failed();
    QVariantMap map;
    for (qsizetype i = 0; i < keysAndValues.size(); i += 2)
        map.insert(keysAndValues.at(i).toString(), keysAndValues.at(i + 1));
    return map;
}

QVariant ZEVKeyedUnarchiver::decodedUnits(const QCborValue &units)
{
    const QByteArray bytes = units.toByteArray();
    if (!units.isByteArray() || bytes.size() % 2 != 0)
        return failed();
    QString string(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < string.size(); ++i)
        string[i] = QChar(qFromBigEndian<quint16>(bytes.constData() + 2 * i));
    return string;
}
