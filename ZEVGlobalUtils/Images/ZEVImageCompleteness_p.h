// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/ZEVImageIdentification.h>

/// Whether the bytes hold the whole first picture and no more work than a picture is worth. Decoders show
/// what there is of a truncated JPEG, GIF or BMP as if nothing was missing; those of other formats refuse it.
namespace ZEVImageCompleteness {

bool isComplete(const ZEVImageIdentification &identification, QByteArrayView bytes);

} // namespace ZEVImageCompleteness
