// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/TagSizeTransformer.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSizeTexts_p.h>

QMetaType TagSizeTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant TagSizeTransformer::transformedValue(const QVariant &value) const
{
    const auto sizes = ZEVVariantValues::objects(value);
    if (!sizes || sizes->isEmpty())
        return {};
    const qint64 sum = ZEVVariantValues::sumOfIntegerValues(*sizes);
    if (sum == 0)
        return ZEVGlobalHelper::localizedStringForKey(u"None").toUpper();
    return byteCountFormatter().stringFromByteCount(sum);
}

const ZEVByteCountFormatter &TagSizeTransformer::byteCountFormatter()
{
    static const ZEVByteCountFormatter formatter = ZEVSizeTexts::zeroPaddingFormatter();
    return formatter;
}
