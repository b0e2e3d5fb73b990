// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

class ZEVByteCountFormatter;

/// As FileSizeTransformer, but nil for a selection whose sizes are unknown or come to 0. Kept: a selection of
/// one 0 shows it.
class ZEV_EXPORT ByteSizeTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;

    /// Made once and shared by all of its values.
    static const ZEVByteCountFormatter &byteCountFormatter();
};
