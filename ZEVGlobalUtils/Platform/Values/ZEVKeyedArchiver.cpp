// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVArchiveFormat_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUnreadableObject.h>

#include <QCborArray>
#include <QHash>
#include <QReadWriteLock>
#include <QtEndian>

namespace {

using Encoder = std::function<void(const QVariant &, ZEVKeyedArchiver &)>;

struct ValueClass {
    QString name;
    Encoder encoder;
};

/// Hosts may register classes at any time, from any thread.
struct Registry {
    QReadWriteLock lock;
    QHash<int, ValueClass> classes;
};

Registry &registry()
{
    static Registry shared;
    return shared;
}

ValueClass registeredClass(QMetaType type)
{
    const QReadLocker locker(&registry().lock);
    return registry().classes.value(type.id());
}

QCborValue encodedString(const QString &string)
{
    if (string.isValidUtf16())
        return string;
    // CBOR's texts are UTF-8, which has no lone surrogates: such a text goes as its bare code units.
    QByteArray units(string.size() * 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < string.size(); ++i)
        qToBigEndian(string.at(i).unicode(), units.data() + 2 * i);
    return QCborMap{{ZEVArchiveFormat::UnitsKey, units}};
}

} // namespace

ZEVKeyedCoding::~ZEVKeyedCoding() = default;

QByteArray ZEVKeyedArchiver::archivedDataWithRootObject(const QVariant &object)
{
    return ZEVArchiveFormat::wrapped(encodedValue(object));
}

QByteArray ZEVKeyedArchiver::archivedDataWithRootObject(const ZEVKeyedCoding &object)
{
    return ZEVArchiveFormat::wrapped(encodedObject(object));
}

void ZEVKeyedArchiver::registerEncoder(QMetaType type, const QString &name, const Encoder &encoder)
{
    const QWriteLocker locker(&registry().lock);
    registry().classes.insert(type.id(), {name, encoder});
}

void ZEVKeyedArchiver::encodeObject(const QVariant &object, QStringView key)
{
    if (object.isValid())
        m_fields.insert(key.toString(), encodedValue(object));
}

void ZEVKeyedArchiver::encodeObject(const ZEVKeyedCoding &object, QStringView key)
{
    m_fields.insert(key.toString(), encodedObject(object));
}

QCborValue ZEVKeyedArchiver::encodedObject(const ZEVKeyedCoding &object)
{
    ZEVKeyedArchiver archiver;
    object.encodeWithCoder(archiver);
    archiver.m_fields.insert(ZEVArchiveFormat::ClassKey, object.classNameForCoder());
    return archiver.m_fields;
}

QCborValue ZEVKeyedArchiver::encodedValue(const QVariant &object)
{
    if (object.metaType() == QMetaType::fromType<ZEVUnreadableObject>())
        return object.value<ZEVUnreadableObject>().archived;
    if (const ValueClass valueClass = registeredClass(object.metaType()); valueClass.encoder) {
        ZEVKeyedArchiver archiver;
        valueClass.encoder(object, archiver);
        archiver.m_fields.insert(ZEVArchiveFormat::ClassKey, valueClass.name);
        return archiver.m_fields;
    }
    switch (object.typeId()) {
    case QMetaType::QString:
        return encodedString(object.toString());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return encodedElements(object.toList());
    case QMetaType::QVariantMap:
        return encodedEntries(object.toMap());
    default: {
        const QCborValue plain = QCborValue::fromVariant(object);
        return ZEVArchiveFormat::isScalar(plain) ? plain : QCborValue();
    }
    }
}

QCborValue ZEVKeyedArchiver::encodedElements(const QVariantList &elements)
{
    QCborArray array;
    for (const QVariant &element : elements)
        array.append(encodedValue(element));
    return array;
}

QCborValue ZEVKeyedArchiver::encodedEntries(const QVariantMap &map)
{
    // Keys and values in turn, since a CBOR map stands for an object's fields.
    QCborArray entries;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        entries.append(encodedString(entry.key()));
        entries.append(encodedValue(entry.value()));
    }
    return QCborMap{{ZEVArchiveFormat::MapKey, entries}};
}
