// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QCborMap>
#include <QVariant>

#include <functional>

class ZEVKeyedArchiver;
class ZEVKeyedUnarchiver;

/// What an object offers that is held by reference and can be archived. Its class name is registered with
/// ZEVKeyedUnarchiver::registerClass().
class ZEV_EXPORT ZEVKeyedCoding {
public:
    virtual ~ZEVKeyedCoding();
    virtual QString classNameForCoder() const = 0;
    virtual void encodeWithCoder(ZEVKeyedArchiver &archiver) const = 0;
};

/// Writes values and objects under keys into a CBOR map (RFC 8949), which ZEVKeyedUnarchiver reads.
class ZEV_EXPORT ZEVKeyedArchiver {
public:
    /// Takes booleans, numbers, strings (lone surrogates and NUL included), byte arrays, dates, URLs, lists
    /// and maps of these, and values of registered classes. What is none of these is archived as nil.
    static QByteArray archivedDataWithRootObject(const QVariant &object);
    static QByteArray archivedDataWithRootObject(const ZEVKeyedCoding &object);

    /// Names the value class \a T in archives. T has `void encodeWithCoder(ZEVKeyedArchiver &) const`; its
    /// reading half is ZEVKeyedUnarchiver::registerClass().
    template <typename T>
    static void registerClass(const QString &name)
    {
        registerEncoder(QMetaType::fromType<T>(), name,
                        [](const QVariant &object, ZEVKeyedArchiver &archiver) {
                            static_cast<const T *>(object.constData())->encodeWithCoder(archiver);
                        });
    }

    /// An invalid \a object is not written, and comes back as a missing key does.
    void encodeObject(const QVariant &object, QStringView key);
    void encodeObject(const ZEVKeyedCoding &object, QStringView key);
    void encodeBool(bool value, QStringView key) { m_fields.insert(key.toString(), value); }

private:
    using Encoder = std::function<void(const QVariant &, ZEVKeyedArchiver &)>;
    static void registerEncoder(QMetaType type, const QString &name, const Encoder &encoder);
    static QCborValue encodedValue(const QVariant &object);
    static QCborValue encodedElements(const QVariantList &elements);
    static QCborValue encodedEntries(const QVariantMap &map);
    static QCborValue encodedObject(const ZEVKeyedCoding &object);

    QCborMap m_fields;
};
