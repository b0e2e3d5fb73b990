// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QCborMap>
#include <QVariant>

#include <functional>
#include <optional>

/// Reads what ZEVKeyedArchiver wrote. Bytes that are truncated, foreign, nested too deep, of a class that is
/// not registered or with a field of the wrong type give nil as a whole, never half an object.
class ZEV_EXPORT ZEVKeyedUnarchiver {
public:
    /// Makes an object from its fields; the value that it returns stands for the object.
    using Maker = std::function<QVariant(ZEVKeyedUnarchiver &)>;

    /// Invalid for nil.
    static QVariant unarchivedObject(const QByteArray &archive);

    /// The elements of a root object that is a list, each on its own: one that cannot be read is a
    /// ZEVUnreadableObject. Empty for any other root object.
    static QVariantList unarchivedElements(const QByteArray &archive);

    /// Nil also when the root object is no \a T.
    template <typename T>
    static std::optional<T> unarchivedObjectOfClass(const QByteArray &archive)
    {
        const QVariant object = unarchivedObject(archive);
        if (object.metaType() != QMetaType::fromType<T>())
            return std::nullopt;
        return object.value<T>();
    }

    static void registerClass(const QString &name, const Maker &maker);

    /// For a value class with a constructor that takes the unarchiver.
    template <typename T>
    static void registerClass(const QString &name)
    {
        registerClass(name,
                      [](ZEVKeyedUnarchiver &unarchiver) { return QVariant::fromValue(T(unarchiver)); });
    }

    /// A missing key is invalid, nil or false; a field of another type than the one asked for fails the
    /// archive.
    QVariant decodeObject(QStringView key);
    std::optional<QString> decodeString(QStringView key);
    std::optional<QVariantList> decodeList(QStringView key);
    bool decodeBool(QStringView key);

    /// For an object that finds its fields at odds with each other: the whole archive gives nil.
    void failDecoding() { m_failed = true; }

private:
    ZEVKeyedUnarchiver(const QCborMap &fields, int depth)
        : m_fields(fields)
        , m_depth(depth)
    {
    }

    QVariant decodedValue(const QCborValue &value);
    QVariant decodedMap(const QCborMap &map);
    QVariant decodedObject(const QCborMap &fields);
    QVariantList decodedElements(const QCborArray &array);
    QVariant decodedEntries(const QCborValue &entries);
    QVariant decodedUnits(const QCborValue &units);
    QVariant failed();

    QCborMap m_fields;
    int m_depth = 0;
    bool m_failed = false;
};
