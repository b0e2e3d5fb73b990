// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVResultsCountDisplayTransformer.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

using namespace Qt::StringLiterals;

QMetaType ZEVResultsCountDisplayTransformer::transformedValueClass() const
{
    return QMetaType::fromType<QString>();
}

QVariant ZEVResultsCountDisplayTransformer::transformedValue(const QVariant &value) const
{
    if (ZEVVariantValues::isNil(value))
        return {};
    // Kept: the two counts differ in placeholder and capitals.
    return ZEVGlobalHelper::localizedStringForKey(u"%d Results Found")
        .replace(u"%d"_s, QString::number(ZEVVariantValues::integerValue(value)));
}
