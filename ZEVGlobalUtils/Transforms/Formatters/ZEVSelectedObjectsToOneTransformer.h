// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

/// The first object of a list, or any one of a set; nil for anything else and for none.
class ZEV_EXPORT ZEVSelectedObjectsToOneTransformer : public ZEVValueTransformer {
public:
    QMetaType transformedValueClass() const override;
    QVariant transformedValue(const QVariant &value) const override;
};
