// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

/// A number as "3 Results Found"; nil for nil.
class ZEV_EXPORT ZEVResultsCountDisplayTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;
};
