// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

#include <optional>

/// How the transformers read what a host hands them.
namespace ZEVVariantValues {

/// No value: nil itself, or the marker that stands for it in a list (a null pointer).
bool isNil(const QVariant &value);
bool isNumber(const QVariant &value);

/// Fractions are cut off, and what 64 bits cannot hold becomes the nearest that they can; 0 for nil and for
/// what is no number.
qint64 integerValue(const QVariant &value);
qint64 integerValue(double value);

/// The objects of a list or a set of any type; nil for anything else, texts and bytes too.
std::optional<QVariantList> objects(const QVariant &value);

/// Of the objects that are not nil.
qint64 sumOfIntegerValues(const QVariantList &objects);

} // namespace ZEVVariantValues
