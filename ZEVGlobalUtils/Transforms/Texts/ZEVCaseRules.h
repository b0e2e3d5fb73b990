// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QLocale>
#include <QStringList>

#include <memory>
#include <optional>

/// The word lists and the language that the case transforms go by, made ready once for any number of titles.
/// A copy shares what is made ready; reading is safe from any thread.
class ZEV_EXPORT ZEVCaseRules {
public:
    /// What a host or its user may set; what is nil stays as it always is.
    struct Lists {
        /// Words, in any case, that take the place of the library's own lists. They are met as words of the
        /// text, so a term with a space or a full stop in it never is: it belongs with the spellings.
        std::optional<QStringList> upperCaseTerms = std::nullopt;
        std::optional<QStringList> lowerCaseTerms = std::nullopt;

        /// What keeps its case wherever a text spells it exactly so ("deadmau5", "k.d. lang", "AC/DC"), not
        /// within longer words but before an apostrophe's ending.
        QStringList untouchedSpellings = {};

        /// Whose case mappings and word breaks to use: Turkish has i with and without a dot, Dutch the
        /// digraph IJ. Nil for the mappings of no special language and the word breaks of the user's.
        std::optional<QLocale> locale = std::nullopt;
    };

    /// The rules of the transforms that are given none.
    ZEVCaseRules();
    explicit ZEVCaseRules(const Lists &lists);

    struct Compiled;
    const Compiled &compiled() const { return *m_compiled; } ///< for the transforms

private:
    std::shared_ptr<const Compiled> m_compiled;
};
