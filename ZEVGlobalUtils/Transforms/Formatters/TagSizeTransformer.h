// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

class ZEVByteCountFormatter;

/// The size of the tags of a selection (a list) in bytes: their sum without an average, or "NONE" for 0. Nil
/// for an empty selection.
class ZEV_EXPORT TagSizeTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;

    /// Made once and shared by all of its values.
    static const ZEVByteCountFormatter &byteCountFormatter();
};
