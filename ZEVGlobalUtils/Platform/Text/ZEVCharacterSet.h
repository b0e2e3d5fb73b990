// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringView>

#include <array>
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
    bool contains(char32_t character) const
    {
        return character < 0x80 ? (m_ascii[character / 64] >> (character % 64) & 1) != 0
                                : isMember(character);
    }

private:
    struct Private;
    explicit ZEVCharacterSet(std::shared_ptr<const Private> members);

    bool isMember(char32_t character) const;

    std::shared_ptr<const Private> d;
    std::array<quint64, 2> m_ascii{}; // a bit a character: most texts ask for nothing else
};
