// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVCountedCharacters_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCanonicalDecomposition_p.h>

char32_t ZEVCountedCharacters::countedCharacter(char32_t character)
{
    const char32_t base = ZEVCanonicalDecomposition::baseCharacter(character);
    const QChar::Category category = QChar::category(base);
    const bool counts =
        category == QChar::Letter_Lowercase || category == QChar::Letter_Uppercase || base == U' ';
    return counts ? base : 0;
}

const ZEVCountedCharacters::Table &ZEVCountedCharacters::firstCharacters()
{
    static const Table table = [] {
        Table counted{};
        for (std::size_t character = 0; character < counted.size(); ++character)
            counted[character] = char16_t(countedCharacter(char32_t(character)));
        return counted;
    }();
    return table;
}
