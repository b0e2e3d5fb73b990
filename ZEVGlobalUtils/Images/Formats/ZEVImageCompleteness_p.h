// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

/// What the structure of a file tells before a decoder is let at it.
namespace ZEVImageCompleteness {

/// Whether the bytes hold the whole first picture, but for an end marker that says nothing. Decoders show what
/// there is of a truncated JPEG, GIF or BMP as if nothing was missing; those of other formats refuse it.
bool isComplete(const ZEVImageIdentification &identification, QByteArrayView bytes);

/// Whether it would take no more time and memory than any artwork is worth.
bool isWorthDecoding(const ZEVImageIdentification &identification, QByteArrayView bytes);

/// Whether more than one frame follows.
bool isAnimated(const ZEVImageIdentification &identification, QByteArrayView bytes);

} // namespace ZEVImageCompleteness
