// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVStringIsNotEmpty.h>

QMetaType ZEVStringIsNotEmpty::transformedValueClass() const { return QMetaType::fromType<bool>(); }

QVariant ZEVStringIsNotEmpty::transformedValue(const QVariant &value) const
{
    return !value.toString().isEmpty(); // of nil, too, the text is empty
}
