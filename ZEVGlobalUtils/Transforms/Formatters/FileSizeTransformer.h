// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

class ZEVByteCountFormatter;

/// The size of a file in bytes as a text; of several files, their sum and the average, 0 included.
class ZEV_EXPORT FileSizeTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;

    /// Made once and shared by all of its values.
    static const ZEVByteCountFormatter &byteCountFormatter();
};
