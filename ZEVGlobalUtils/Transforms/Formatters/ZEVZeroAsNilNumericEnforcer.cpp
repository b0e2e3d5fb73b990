// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVZeroAsNilNumericEnforcer.h>

const ZEVZeroAsNilNumericEnforcer *ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer()
{
    struct Shared : ZEVZeroAsNilNumericEnforcer {
        Shared()
        {
            setMinimum(0);
            setMaximum(9999);
        }
    };
    static const Shared enforcer;
    return &enforcer;
}

bool ZEVZeroAsNilNumericEnforcer::getObjectValue(QVariant *object, const QString &string,
                                                 QString *errorDescription) const
{
    const bool success = ZEVNumericEnforcer::getObjectValue(object, string, errorDescription);
    if (success && object && object->toLongLong() == 0)
        *object = QVariant();
    return success;
}
