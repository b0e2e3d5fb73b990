// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/FileSizeTransformer.h>

#include <ZEVGlobalUtils/Transforms/ZEVSizeTexts_p.h>
#include <ZEVGlobalUtils/Transforms/ZEVVariantValues_p.h>

QMetaType FileSizeTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant FileSizeTransformer::transformedValue(const QVariant &value) const
{
    if (ZEVVariantValues::isNumber(value))
        return byteCountFormatter().stringFromByteCount(ZEVVariantValues::integerValue(value));
    const auto sizes = ZEVVariantValues::objects(value);
    if (!sizes || sizes->isEmpty())
        return {};
    const qint64 sum = ZEVVariantValues::sumOfIntegerValues(*sizes);
    if (sum == 0 || sizes->size() == 1)
        return byteCountFormatter().stringFromByteCount(sum);
    return ZEVSizeTexts::sumAndAverage(byteCountFormatter(), sum, sizes->size());
}

const ZEVByteCountFormatter &FileSizeTransformer::byteCountFormatter()
{
    static const ZEVByteCountFormatter formatter = ZEVSizeTexts::zeroPaddingFormatter();
    return formatter;
}
