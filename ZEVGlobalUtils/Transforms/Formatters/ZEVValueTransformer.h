// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QMetaType>
#include <QStringList>
#include <QVariant>

#include <memory>

/// Turns a value of the host's model into what is shown of it. A value is nil (an invalid variant), a number,
/// a string, a list in which a null pointer (or nil) marks an object without a value, or a set. Transformers
/// keep no state: they may be used from any thread.
class ZEV_EXPORT ZEVValueTransformer {
public:
    ZEVValueTransformer() = default;
    virtual ~ZEVValueTransformer();
    Q_DISABLE_COPY_MOVE(ZEVValueTransformer)

    /// The type of what comes out, QVariant where it may be any.
    virtual QMetaType transformedValueClass() const = 0;
    virtual bool allowsReverseTransformation() const { return false; }
    /// Nil where nothing is to be shown.
    virtual QVariant transformedValue(const QVariant &value) const = 0;

    /// The way back, where it is allowed; by itself the same way again, as for a negation.
    virtual QVariant reverseTransformedValue(const QVariant &value) const;

    /// The library's own are there under the names of their classes; null for a name that nobody has set. A
    /// pattern item's valueTransformerName is such a name. Any thread.
    static std::shared_ptr<const ZEVValueTransformer> valueTransformerForName(const QString &name);
    static void setValueTransformer(const std::shared_ptr<const ZEVValueTransformer> &transformer,
                                    const QString &name);
    static QStringList valueTransformerNames();
};
