// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVTitleCase_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Buffer;
using ZEVCaseMapping::Form;

namespace {

/// What title case needs beside the lists, made together and once.
struct Shared {
    ZEVCharacterSet parenthesisSet = ZEVCharacterSet::charactersInString(u"{[(");
    ZEVCharacterSet romanNumerals = ZEVCharacterSet::charactersInString(u"IVXLCDM");
    ZEVRegularExpression romanNumeralRegex =
        ZEVRegularExpression::compile(u"^M{0,4}(CM|CD|D?C{0,3})(XC|XL|L?X{0,3})(IX|IV|V?I{0,3})$"_s).value();
    ZEVRegularExpression ordinalNumbersRegex =
        ZEVRegularExpression::compile(u"^\\d{0,}(st|nd|rd|th)$"_s).value();
};

const Shared &shared()
{
    static const Shared values;
    return values;
}

/// Appends a word in the form in which it is one of the terms, or nothing.
bool appendedAsTerm(Buffer &result, QStringView word, Form form, const ZEVTermSet &terms,
                    const ZEVCaseRules::Compiled &rules)
{
    const qsizetype begin = result.size();
    ZEVCaseMapping::append(result, word, form, rules.caseLocale);
    if (terms.contains(ZEVCaseMapping::view(result).sliced(begin)))
        return true;
    result.resize(begin);
    return false;
}

/// The matchers are kept by each thread: making one costs more than a whole title. One that has struck its
/// limits too often is of no more use.
bool matchesOnce(std::optional<ZEVRegularExpressionMatcher> &matcher, const ZEVRegularExpression &expression,
                 QStringView word)
{
    if (!matcher || matcher->isExhausted())
        matcher.emplace(expression);
    matcher->setText(word);
    return matcher->findNext() && !matcher->findNext();
}

bool endsLikeOrdinal(QChar lastButOne, QChar last)
{
    return (last == u't' && lastButOne == u's')
        || (last == u'd' && (lastButOne == u'n' || lastButOne == u'r'))
        || (last == u'h' && lastButOne == u't');
}

/// Kept: the digits may be absent, so a bare "st" stays small. The expression is asked only about words with
/// such an end.
bool isOrdinal(QStringView word)
{
    if (word.size() < 2 || !endsLikeOrdinal(word[word.size() - 2], word.back()))
        return false;
    thread_local std::optional<ZEVRegularExpressionMatcher> matcher;
    return matchesOnce(matcher, shared().ordinalNumbersRegex, word);
}

/// Kept: only numerals in capitals count, and "MIX" is one. The expression is asked only about words of
/// nothing but numerals.
bool isRomanNumeral(QStringView word)
{
    const auto isNumeral = [](QChar unit) { return shared().romanNumerals.contains(unit.unicode()); };
    if (!std::ranges::all_of(word, isNumeral))
        return false;
    thread_local std::optional<ZEVRegularExpressionMatcher> matcher;
    return matchesOnce(matcher, shared().romanNumeralRegex, word);
}

} // namespace

void ZEVAppendOrvCapitalizedWord(Buffer &result, QStringView word, const ZEVCaseRules::Compiled &rules)
{
    if (!rules.mayBeTerm(word, rules.upperCaseTerms)
        || !appendedAsTerm(result, word, Form::Upper, rules.upperCaseTerms, rules))
        ZEVCaseMapping::append(result, word, Form::Capitalized, rules.caseLocale);
}

QString ZEVTitleCase::result()
{
    qsizetype done = 0;
    ZEVWordWalk words(m_text, m_rules);
    while (const auto word = words.next()) {
        ZEVCaseMapping::append(m_result, m_text.sliced(done, word->range.location - done));
        appendWord(*word);
        done = word->range.end();
    }
    ZEVCaseMapping::append(m_result, m_text.sliced(done));
    return ZEVCaseMapping::view(m_result).toString();
}

/// No word is both a numeral in capitals and an ordinal, so which is asked first does not matter.
void ZEVTitleCase::appendWord(const ZEVWordWalk::Word &word)
{
    const QStringView text = m_text.sliced(word.range.location, word.range.length);
    if (!word.isUntouched && appendedAsSmallWord(word, text))
        return;
    if (word.isUntouched || isRomanNumeral(text))
        ZEVCaseMapping::append(m_result, text);
    else if (isOrdinal(text))
        ZEVCaseMapping::append(m_result, text, Form::Lower, m_rules.caseLocale);
    else
        ZEVAppendOrvCapitalizedWord(m_result, text, m_rules);
}

bool ZEVTitleCase::appendedAsSmallWord(const ZEVWordWalk::Word &word, QStringView text)
{
    return m_rules.mayBeTerm(text, m_rules.lowerCaseTerms) && (isFollowedByFullStop(word) || isInner(word))
        && appendedAsTerm(m_result, text, Form::Lower, m_rules.lowerCaseTerms, m_rules);
}

/// Whether the word stands within the title, where small words stay small.
bool ZEVTitleCase::isInner(const ZEVWordWalk::Word &word) const
{
    if (word.isFirst || word.enclosingEnd == m_text.size())
        return false;
    if (shared().parenthesisSet.contains(m_result.back()))
        return false;
    return !followsReset();
}

/// Whether the last character before the word that is no white space lets a title begin anew. Kept: the very
/// first character of the title is never looked at.
bool ZEVTitleCase::followsReset() const
{
    const ZEVCharacterSet &whitespace = ZEVCharacterSet::whitespace();
    for (qsizetype i = m_result.size() - 1; i > 0; --i) {
        if (!whitespace.contains(m_result[i]))
            return ZEVStringTransforms::punctuationResetSet().contains(m_result[i]);
    }
    return false;
}

/// "vol." and "feat." are small words at either end of the title, too.
bool ZEVTitleCase::isFollowedByFullStop(const ZEVWordWalk::Word &word) const
{
    return word.range.end() < word.enclosingEnd && m_text[word.range.end()] == u'.';
}
