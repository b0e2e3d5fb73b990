// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringView>

#include <memory>

/// An immutable set of Unicode characters. A copy shares the set; reading is safe from any thread. A half of
/// a surrogate pair that stands alone is a character of its own, which only an inverted set contains.
class ZEV_EXPORT ZEVCharacterSet {
public:
    static ZEVCharacterSet charactersInString(QStringView characters);

    /// The space separators (general category Zs) and the tab; line ends are none of it.
    static const ZEVCharacterSet &whitespace();
    /// The letters and the marks that belong to them (general categories L and M).
    static const ZEVCharacterSet &letters();
    /// The decimal digits of every script (general category Nd).
    static const ZEVCharacterSet &decimalDigits();

    ZEVCharacterSet inverted() const;
    bool contains(char32_t character) const;

private:
    struct Private;
    explicit ZEVCharacterSet(std::shared_ptr<const Private> members);

    std::shared_ptr<const Private> d;
};
