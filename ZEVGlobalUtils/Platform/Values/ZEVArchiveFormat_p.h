// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCborMap>
#include <QCborValue>

/// What the two halves of the keyed archive agree on: a CBOR map of two entries, this format's name with its
/// version and the root object. An object is a map of its fields and its class name.
namespace ZEVArchiveFormat {

inline constexpr QLatin1StringView NameKey("$archive");
inline constexpr QLatin1StringView Name("ZEVKeyedArchive/1");
inline constexpr QLatin1StringView RootKey("$root");
inline constexpr QLatin1StringView ClassKey("$class");
inline constexpr QLatin1StringView MapKey("$map");
inline constexpr QLatin1StringView UnitsKey("$utf16be");

/// Deeper than any honest archive, and far from what a stack holds.
inline constexpr int MaximumDepth = 64;

/// Of all that CBOR can say, what archives hold.
inline bool isScalar(const QCborValue &value)
{
    return value.isString() || value.isInteger() || value.isBool() || value.isDouble() || value.isByteArray()
        || value.isDateTime() || value.isUrl() || value.isUuid();
}

inline QByteArray wrapped(const QCborValue &root)
{
    return QCborValue(QCborMap{{NameKey, Name}, {RootKey, root}}).toCbor();
}

} // namespace ZEVArchiveFormat
