// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QFont;

/// Heavier variants at a font's size. Kept: the family is always that of the system's font, whatever the
/// family of \a font.
namespace ZEVFontWeightHelpers {

ZEV_EXPORT QFont mediumVariant(const QFont &font);
ZEV_EXPORT QFont semiBoldVariant(const QFont &font);
ZEV_EXPORT QFont heavyVariant(const QFont &font);

} // namespace ZEVFontWeightHelpers
