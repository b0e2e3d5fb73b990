// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSizeTexts_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

namespace {

/// Kept: the average is that of the whole selection, of which \a count objects may lack a size.
QString sumAndAverage(const ZEVByteCountFormatter &formatter, qint64 sum, qsizetype count)
{
    return QString(formatter.stringFromByteCount(sum) + u" (~ " + formatter.stringFromByteCount(sum / count)
                   + u')');
}

} // namespace

ZEVByteCountFormatter ZEVSizeTexts::zeroPaddingFormatter()
{
    ZEVByteCountFormatter formatter;
    formatter.setZeroPadsFractionDigits(true);
    return formatter;
}

QVariant ZEVSizeTexts::sizeText(const ZEVByteCountFormatter &formatter, const QVariant &value,
                                Nothing nothing)
{
    if (ZEVVariantValues::isNumber(value))
        return formatter.stringFromByteCount(ZEVVariantValues::integerValue(value));
    const auto sizes = ZEVVariantValues::objects(value);
    if (!sizes || sizes->isEmpty())
        return {};
    const qint64 sum = ZEVVariantValues::sumOfIntegerValues(*sizes);
    const bool isOneNumber = sizes->size() == 1 && !ZEVVariantValues::isNil(sizes->first());
    if (isOneNumber || (sum == 0 && nothing == Nothing::Shown))
        return formatter.stringFromByteCount(sum);
    return sum == 0 ? QVariant() : sumAndAverage(formatter, sum, sizes->size());
}
