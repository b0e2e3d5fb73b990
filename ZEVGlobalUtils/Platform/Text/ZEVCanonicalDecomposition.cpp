// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVCanonicalDecomposition_p.h>

#include <unicode/normalizer2.h>

char32_t ZEVCanonicalDecomposition::baseCharacter(char32_t character)
{
    UErrorCode code = U_ZERO_ERROR;
    const icu::Normalizer2 *const decomposer = icu::Normalizer2::getNFDInstance(code);
    icu::UnicodeString parts;
    if (U_SUCCESS(code) && decomposer->getDecomposition(static_cast<UChar32>(character), parts))
        return static_cast<char32_t>(parts.char32At(0));
    return character;
}
