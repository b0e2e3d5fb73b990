// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVNumericEnforcer.h>

/// Reads 0 as nil, so that typing it clears a field.
class ZEV_EXPORT ZEVZeroAsNilNumericEnforcer : public ZEVNumericEnforcer {
    Q_OBJECT

public:
    using ZEVNumericEnforcer::ZEVNumericEnforcer;

    /// For track, disc and year fields: 0 to 9999. Made once; not to be changed.
    static const ZEVZeroAsNilNumericEnforcer *sharedNumericEnforcer();

    bool getObjectValue(QVariant *object, const QString &string,
                        QString *errorDescription = nullptr) const override;
};
