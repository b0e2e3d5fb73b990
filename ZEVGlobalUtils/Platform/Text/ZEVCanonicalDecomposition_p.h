// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

namespace ZEVCanonicalDecomposition {

/// What a character begins with once it is decomposed (Unicode Standard Annex #15, NFD): "e" of "é", and the
/// character itself where it has no parts. Any thread.
char32_t baseCharacter(char32_t character);

} // namespace ZEVCanonicalDecomposition
