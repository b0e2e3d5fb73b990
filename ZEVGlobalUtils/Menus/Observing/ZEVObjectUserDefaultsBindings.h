// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariant>

#include <memory>

class QObject;
class ZEVValueTransformer;

/// Keeps a property and a key of ZEVUserDefaults::standardUserDefaults() alike, both ways, for as long as the
/// object lives.
namespace ZEVObjectUserDefaultsBindings {

struct BindingOptions {
    QVariant nullPlaceholder =
        {}; ///< what the property becomes where nothing is stored; without one it stays
    /// Between the stored value and the property's; one that has no way back leaves the stored value alone.
    std::shared_ptr<const ZEVValueTransformer> valueTransformer = {};
};

/// The property takes the stored value at once. A stored value that it does not take leaves it as it is. A
/// binding of the same name is replaced. False when \a object has no such property.
ZEV_EXPORT bool bind(QObject *object, const QString &binding, const QString &toUserDefaultsWithKey,
                     const BindingOptions &options = {});

/// Kept: removes a binding of that name from the user defaults, not from \a object, which stays bound. To
/// free the object, call unbind().
ZEV_EXPORT void unbindFromUserDefaults(QObject *object, const QString &binding);

ZEV_EXPORT void unbind(QObject *object, const QString &binding);

} // namespace ZEVObjectUserDefaultsBindings
