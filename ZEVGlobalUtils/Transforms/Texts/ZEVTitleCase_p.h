// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVWordWalk_p.h>

/// Appends \a word capitalised, or in capitals where that makes it one of the upper-case terms.
void ZEVAppendOrvCapitalizedWord(ZEVCaseMapping::Buffer &result, QStringView word,
                                 const ZEVCaseRules::Compiled &rules);

/// Brings one text into title case. The rules look back at words that have been replaced already, and ahead
/// only at what stands between two words, so one pass that builds up the result is enough.
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
    bool appendedAsSmallWord(const ZEVWordWalk::Word &word, QStringView text);
    bool isInner(const ZEVWordWalk::Word &word) const;
    bool followsReset() const;
    bool isFollowedByFullStop(const ZEVWordWalk::Word &word) const;

    QStringView m_text;
    const ZEVCaseRules::Compiled &m_rules;
    ZEVCaseMapping::Buffer m_result;
};
