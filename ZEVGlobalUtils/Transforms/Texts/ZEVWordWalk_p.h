// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVWordIterator_p.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules_p.h>

/// Walks the words of a text with what the case rules ask about each of them.
class ZEVWordWalk {
public:
    struct Word {
        ZEVRange range;
        qsizetype enclosingEnd = 0; ///< where the next word begins, or the text ends
        bool isFirst = false; ///< its enclosing range begins at 0, every other word's at the word
        bool isUntouched = false; ///< it lies in a spelling that keeps its case
    };

    ZEVWordWalk(QStringView text, const ZEVCaseRules::Compiled &rules)
        : m_text(text)
        , m_rules(rules)
        , m_words(text, rules.wordBreakLocale())
        , m_coming(m_words.next())
    {
    }

    std::optional<Word> next()
    {
        if (!m_coming)
            return std::nullopt;
        const ZEVRange range = *m_coming;
        m_coming = m_words.next();
        const bool isFirst = std::exchange(m_atFirst, false);
        return Word{range, m_coming ? m_coming->location : m_text.size(), isFirst, isUntouched(range)};
    }

private:
    bool isUntouched(const ZEVRange &word)
    {
        if (m_rules.spellings.empty() || word.location < m_untouchedEnd)
            return word.location < m_untouchedEnd;
        const auto range = m_rules.untouchedRangeAt(m_text, word.location);
        if (range)
            m_untouchedEnd = range->end();
        return range.has_value();
    }

    QStringView m_text;
    const ZEVCaseRules::Compiled &m_rules;
    ZEVWordIterator m_words;
    std::optional<ZEVRange> m_coming;
    qsizetype m_untouchedEnd = 0;
    bool m_atFirst = true;
};
