// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVTitleCase_p.h>

#include <ZEVGlobalUtils/Platform/ZEVCaseMapping.h>
#include <ZEVGlobalUtils/Platform/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringTransforms.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Form;

namespace {

/// What title case needs beside the lists, made together and once.
struct Shared {
    ZEVCharacterSet parenthesisSet = ZEVCharacterSet::charactersInString(u"{[(");
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

bool matchesOnce(std::optional<ZEVRegularExpressionMatcher> &matcher, const ZEVRegularExpression &expression,
                 QStringView word)
{
    if (!matcher)
        matcher.emplace(expression);
    matcher->setText(word);
    return matcher->findNext() && !matcher->findNext();
}

} // namespace

void ZEVAppendOrvCapitalizedWord(QString &result, QStringView word, const ZEVCaseRules::Compiled &rules)
{
    const qsizetype begin = result.size();
    ZEVCaseMapping::append(result, word, Form::Capitalized, rules.caseLocale);
    const auto capitalized = QStringView(result).sliced(begin);
    if (!rules.mayBeTerm(capitalized, rules.upperCaseTerms))
        return;
    const QString capitals = ZEVCaseMapping::upperCased(capitalized, rules.caseLocale);
    if (rules.upperCaseTerms.contains(capitals))
        result.replace(begin, result.size() - begin, capitals);
}

QString ZEVTitleCase::result()
{
    m_result.reserve(m_text.size() + 16);
    qsizetype done = 0;
    ZEVWordWalk words(m_text, m_rules);
    while (const auto word = words.next()) {
        m_result += m_text.sliced(done, word->range.location - done);
        appendWord(*word);
        done = word->range.end();
    }
    m_result += m_text.sliced(done);
    return std::move(m_result);
}

void ZEVTitleCase::appendWord(const ZEVWordWalk::Word &word)
{
    const QStringView text = m_text.sliced(word.range.location, word.range.length);
    if (word.isUntouched)
        m_result += text;
    else if ((isFollowedByFullStop(word) || isInner(word)) && appendedAsLowerCaseTerm(text))
        return;
    else if (isOrdinal(text))
        ZEVCaseMapping::append(m_result, text, Form::Lower, m_rules.caseLocale);
    else if (isRomanNumeral(text))
        m_result += text;
    else
        ZEVAppendOrvCapitalizedWord(m_result, text, m_rules);
}

/// Whether the word stands within the title, where small words stay small.
bool ZEVTitleCase::isInner(const ZEVWordWalk::Word &word) const
{
    if (word.isFirst || word.enclosingEnd == m_text.size())
        return false;
    if (shared().parenthesisSet.contains(m_result.back().unicode()))
        return false;
    return !followsReset();
}

/// Whether the last character before the word that is no white space lets a title begin anew. Kept: the very
/// first character of the title is never looked at.
bool ZEVTitleCase::followsReset() const
{
    const ZEVCharacterSet &whitespace = ZEVCharacterSet::whitespace();
    for (qsizetype i = m_result.size() - 1; i > 0; --i) {
        if (!whitespace.contains(m_result[i].unicode()))
            return ZEVStringTransforms::punctuationResetSet().contains(m_result[i].unicode());
    }
    return false;
}

/// "vol." and "feat." are small words at either end of the title, too.
bool ZEVTitleCase::isFollowedByFullStop(const ZEVWordWalk::Word &word) const
{
    return word.range.end() < word.enclosingEnd && m_text[word.range.end()] == u'.';
}

bool ZEVTitleCase::appendedAsLowerCaseTerm(QStringView word)
{
    if (!m_rules.mayBeTerm(word, m_rules.lowerCaseTerms))
        return false;
    const qsizetype begin = m_result.size();
    ZEVCaseMapping::append(m_result, word, Form::Lower, m_rules.caseLocale);
    if (m_rules.lowerCaseTerms.contains(QStringView(m_result).sliced(begin)))
        return true;
    m_result.truncate(begin);
    return false;
}

/// Kept: the digits may be absent, so a bare "st" stays small. The expression is asked only about words with
/// such an end.
bool ZEVTitleCase::isOrdinal(QStringView word)
{
    const bool mayBe =
        word.endsWith(u"st") || word.endsWith(u"nd") || word.endsWith(u"rd") || word.endsWith(u"th");
    return mayBe && matchesOnce(m_ordinals, shared().ordinalNumbersRegex, word);
}

/// Kept: only numerals in capitals count, and "MIX" is one. The expression is asked only about words of
/// nothing but numerals.
bool ZEVTitleCase::isRomanNumeral(QStringView word)
{
    const auto isNumeral = [](QChar unit) { return QStringView(u"IVXLCDM").contains(unit); };
    return std::ranges::all_of(word, isNumeral)
        && matchesOnce(m_romanNumerals, shared().romanNumeralRegex, word);
}
