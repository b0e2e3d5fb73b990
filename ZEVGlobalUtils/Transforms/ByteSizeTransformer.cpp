// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ByteSizeTransformer.h>

#include <ZEVGlobalUtils/Transforms/ZEVSizeTexts_p.h>
#include <ZEVGlobalUtils/Transforms/ZEVVariantValues_p.h>

QMetaType ByteSizeTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant ByteSizeTransformer::transformedValue(const QVariant &value) const
{
    if (ZEVVariantValues::isNumber(value))
        return byteCountFormatter().stringFromByteCount(ZEVVariantValues::integerValue(value));
    const auto sizes = ZEVVariantValues::objects(value);
    if (!sizes || sizes->isEmpty())
        return {};
    const qint64 sum = ZEVVariantValues::sumOfIntegerValues(*sizes);
    if (sizes->size() == 1 && !ZEVVariantValues::isNil(sizes->first()))
        return byteCountFormatter().stringFromByteCount(sum);
    return sum == 0 ? QVariant() : ZEVSizeTexts::sumAndAverage(byteCountFormatter(), sum, sizes->size());
}

const ZEVByteCountFormatter &ByteSizeTransformer::byteCountFormatter()
{
    static const ZEVByteCountFormatter formatter = ZEVSizeTexts::zeroPaddingFormatter();
    return formatter;
}
