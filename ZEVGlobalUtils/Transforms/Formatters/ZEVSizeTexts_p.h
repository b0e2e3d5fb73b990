// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVByteCountFormatter.h>

#include <QVariant>

/// What the size transformers have in common.
namespace ZEVSizeTexts {

ZEVByteCountFormatter zeroPaddingFormatter();

/// Whether a selection that comes to no bytes shows as such or not at all.
enum class Nothing { Shown, Hidden };

/// The text for a number, or for a list of numbers that may lack some: their sum and average, or the one
/// number. Nil for anything else.
QVariant sizeText(const ZEVByteCountFormatter &formatter, const QVariant &value, Nothing nothing);

} // namespace ZEVSizeTexts
