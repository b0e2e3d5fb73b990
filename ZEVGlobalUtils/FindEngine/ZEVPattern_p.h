// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

#include <QVariant>

/// The elements of a pattern, read in one place: each is text, an item, or something to skip.
namespace ZEVPattern {

/// How a text that is not there is shown.
inline const QString NilText = QStringLiteral("(null)");

/// Null when \a element is no text; valid as long as \a element is.
inline const QString *literalText(const QVariant &element)
{
    return element.typeId() == QMetaType::QString ? static_cast<const QString *>(element.constData())
                                                  : nullptr;
}

/// Null when \a element is no item; valid as long as \a element is.
inline const ZEVPatternItem *item(const QVariant &element)
{
    return element.metaType() == QMetaType::fromType<ZEVPatternItem>()
        ? static_cast<const ZEVPatternItem *>(element.constData())
        : nullptr;
}

} // namespace ZEVPattern
