// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

#include <QSequentialIterable>

#include <algorithm>
#include <cmath>
#include <limits>

using Limits = std::numeric_limits<qint64>;

bool ZEVVariantValues::isNil(const QVariant &value)
{
    return !value.isValid() || value.typeId() == QMetaType::Nullptr;
}

bool ZEVVariantValues::isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

qint64 ZEVVariantValues::integerValue(double value)
{
    if (std::isnan(value))
        return 0;
    if (std::abs(value) < 0x1p63)
        return static_cast<qint64>(value);
    return value < 0 ? Limits::min() : Limits::max();
}

qint64 ZEVVariantValues::integerValue(const QVariant &value)
{
    if (!isNumber(value))
        return 0;
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        return integerValue(value.toDouble());
    if (value.typeId() == QMetaType::ULongLong || value.typeId() == QMetaType::ULong)
        return static_cast<qint64>(std::min(value.toULongLong(), quint64(Limits::max())));
    return value.toLongLong();
}

std::optional<QVariantList> ZEVVariantValues::objects(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantList)
        return value.toList();
    if (value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray
        || !value.canConvert<QSequentialIterable>())
        return std::nullopt;
    QVariantList list;
    const auto iterable = value.value<QSequentialIterable>();
    for (const QVariant &object : iterable)
        list.append(object);
    return list;
}

qint64 ZEVVariantValues::sumOfIntegerValues(const QVariantList &objects)
{
    qint64 sum = 0;
    for (const QVariant &object : objects) {
        const qint64 value = integerValue(object);
        if (__builtin_add_overflow(sum, value, &sum))
            sum = value < 0 ? Limits::min() : Limits::max();
    }
    return sum;
}
