// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSizeTexts_p.h>

QMetaType FileSizeTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant FileSizeTransformer::transformedValue(const QVariant &value) const
{
    return ZEVSizeTexts::sizeText(byteCountFormatter(), value, ZEVSizeTexts::Nothing::Shown);
}

const ZEVByteCountFormatter &FileSizeTransformer::byteCountFormatter()
{
    static const ZEVByteCountFormatter formatter = ZEVSizeTexts::zeroPaddingFormatter();
    return formatter;
}
