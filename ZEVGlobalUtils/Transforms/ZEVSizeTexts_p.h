// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/ZEVByteCountFormatter.h>

/// What the size transformers have in common.
namespace ZEVSizeTexts {

inline ZEVByteCountFormatter zeroPaddingFormatter()
{
    ZEVByteCountFormatter formatter;
    formatter.setZeroPadsFractionDigits(true);
    return formatter;
}

/// Kept: the average is that of the whole selection, of which \a count objects may lack a size.
inline QString sumAndAverage(const ZEVByteCountFormatter &formatter, qint64 sum, qsizetype count)
{
    return QString(formatter.stringFromByteCount(sum) + u" (~ " + formatter.stringFromByteCount(sum / count)
                   + u')');
}

} // namespace ZEVSizeTexts
