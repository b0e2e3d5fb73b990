// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVMatchesCountDisplayTransformer.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

using namespace Qt::StringLiterals;

QMetaType ZEVMatchesCountDisplayTransformer::transformedValueClass() const
{
    return QMetaType::fromType<QString>();
}

QVariant ZEVMatchesCountDisplayTransformer::transformedValue(const QVariant &value) const
{
    if (ZEVVariantValues::isNil(value))
        return {};
    // Kept: the two counts differ in placeholder and capitals.
    return ZEVGlobalHelper::localizedStringForKey(u"%lu matches")
        .replace(u"%lu"_s, QString::number(ZEVVariantValues::integerValue(value)));
}
