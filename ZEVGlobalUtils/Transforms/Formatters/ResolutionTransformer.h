// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

/// A size in pixels, a text of the form "{width, height}" or a QSizeF, as "640 × 480 px" with six-per-em
/// spaces (U+2006) around the sign. The numbers are cut to integers and not localized; 0 for what is no size.
class ZEV_EXPORT ResolutionTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;
};
