// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ByteSizeTransformer.h>

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSizeTexts_p.h>

QMetaType ByteSizeTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant ByteSizeTransformer::transformedValue(const QVariant &value) const
{
    return ZEVSizeTexts::sizeText(byteCountFormatter(), value, ZEVSizeTexts::Nothing::Hidden);
}

const ZEVByteCountFormatter &ByteSizeTransformer::byteCountFormatter()
{
    static const ZEVByteCountFormatter formatter = ZEVSizeTexts::zeroPaddingFormatter();
    return formatter;
}
