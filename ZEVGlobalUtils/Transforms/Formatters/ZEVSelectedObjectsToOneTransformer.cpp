// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVSelectedObjectsToOneTransformer.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

QMetaType ZEVSelectedObjectsToOneTransformer::transformedValueClass() const
{
    return QMetaType::fromType<QVariant>();
}

QVariant ZEVSelectedObjectsToOneTransformer::transformedValue(const QVariant &value) const
{
    const auto objects = ZEVVariantValues::objects(value);
    return objects && !objects->isEmpty() ? objects->first() : QVariant();
}
