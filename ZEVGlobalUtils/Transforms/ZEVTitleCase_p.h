// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Transforms/ZEVWordWalk_p.h>

/// Appends \a word capitalised, or in capitals where that makes it one of the upper-case terms.
void ZEVAppendOrvCapitalizedWord(QString &result, QStringView word, const ZEVCaseRules::Compiled &rules);

/// Brings one text into title case. What is built up is the described working copy as far as the rules read
/// it: they look back at what has been replaced, and ahead only at what stands between two words.
class ZEVTitleCase {
public:
    ZEVTitleCase(QStringView text, const ZEVCaseRules::Compiled &rules)
        : m_text(text)
        , m_rules(rules)
    {
    }

    QString result();

private:
    void appendWord(const ZEVWordWalk::Word &word);
    bool isInner(const ZEVWordWalk::Word &word) const;
    bool followsReset() const;
    bool isFollowedByFullStop(const ZEVWordWalk::Word &word) const;
    bool appendedAsLowerCaseTerm(QStringView word);
    bool isOrdinal(QStringView word);
    bool isRomanNumeral(QStringView word);

    QStringView m_text;
    const ZEVCaseRules::Compiled &m_rules;
    QString m_result;
    std::optional<ZEVRegularExpressionMatcher> m_ordinals; // made for the first word that may be one
    std::optional<ZEVRegularExpressionMatcher> m_romanNumerals;
};
