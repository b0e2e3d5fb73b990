// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVStringTransforms.h>

#include <ZEVGlobalUtils/Platform/ZEVCaseMapping.h>
#include <ZEVGlobalUtils/Platform/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Transforms/ZEVTitleCase_p.h>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Form;

namespace {

/// What of a text keeps its case: whole words of it, from the first of a spelling to its last.
QList<ZEVRange> untouchedRanges(QStringView text, const ZEVCaseRules::Compiled &rules)
{
    QList<ZEVRange> ranges;
    if (rules.spellings.empty())
        return ranges;
    ZEVWordWalk words(text, rules);
    while (const auto word = words.next()) {
        if (word->isUntouched)
            ranges.append(word->range);
    }
    return ranges;
}

/// Lower-cased as a whole, not word by word: the form of a Greek sigma depends on what stands around it.
QString lowerCasedAround(const QList<ZEVRange> &untouched, QStringView text, const QByteArray &locale)
{
    QString result;
    result.reserve(text.size() + 16);
    qsizetype done = 0;
    for (const ZEVRange &range : untouched) {
        ZEVCaseMapping::append(result, text.sliced(done, range.location - done), Form::Lower, locale);
        result += text.sliced(range.location, range.length);
        done = range.end();
    }
    ZEVCaseMapping::append(result, text.sliced(done), Form::Lower, locale);
    return result;
}

/// By whole characters: a letter of two UTF-16 units is no less a letter.
void appendLettersOf(QStringView word, QString &letters)
{
    static const ZEVCharacterSet letterSet = ZEVCharacterSet::letters();
    for (qsizetype i = 0; i < word.size(); ++i) {
        const bool isPair = word[i].isHighSurrogate() && i + 1 < word.size() && word[i + 1].isLowSurrogate();
        const char32_t character = isPair ? QChar::surrogateToUcs4(word[i], word[i + 1]) : word[i].unicode();
        if (letterSet.contains(character))
            letters += word.sliced(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
    }
}

} // namespace

QString ZEVStringTransforms::orvCapitalizedString(QStringView string, const ZEVCaseRules &caseRules)
{
    const ZEVCaseRules::Compiled &rules = caseRules.compiled();
    QString result;
    result.reserve(string.size() + 16);
    qsizetype done = 0;
    ZEVWordWalk words(string, rules);
    while (const auto word = words.next()) {
        result += string.sliced(done, word->range.location - done);
        const QStringView text = string.sliced(word->range.location, word->range.length);
        if (word->isUntouched)
            result += text;
        else
            ZEVAppendOrvCapitalizedWord(result, text, rules);
        done = word->range.end();
    }
    result += string.sliced(done);
    return result;
}

QString ZEVStringTransforms::orvTitleCaseString(QStringView string, const ZEVCaseRules &rules)
{
    return ZEVTitleCase(string, rules.compiled()).result();
}

QString ZEVStringTransforms::sentenceCaseString(QStringView string, const ZEVCaseRules &caseRules)
{
    const ZEVCaseRules::Compiled &rules = caseRules.compiled();
    const QList<ZEVRange> untouched = untouchedRanges(string, rules);
    QString result = lowerCasedAround(untouched, string, rules.caseLocale);
    const auto first = ZEVWordIterator(result, rules.wordBreakLocale()).next();
    if (!first || (!untouched.isEmpty() && untouched.first().location <= first->location))
        return result;
    QString capitalized;
    ZEVCaseMapping::append(capitalized, result.sliced(first->location, first->length), Form::Capitalized,
                           rules.caseLocale);
    return result.replace(first->location, first->length, capitalized);
}

QString ZEVStringTransforms::camelCaseString(QStringView string, const ZEVCaseRules &caseRules)
{
    const ZEVCaseRules::Compiled &rules = caseRules.compiled();
    QString result;
    QString letters;
    ZEVWordWalk words(string, rules);
    while (const auto word = words.next()) {
        letters.resize(0); // keeps its memory for the next word
        appendLettersOf(string.sliced(word->range.location, word->range.length), letters);
        if (word->isUntouched)
            result += letters;
        else
            ZEVCaseMapping::append(result, letters, result.isEmpty() ? Form::Lower : Form::Capitalized,
                                   rules.caseLocale);
    }
    return result;
}

QString ZEVStringTransforms::sansUnderscoresString(QStringView string)
{
    return string.toString().replace(u'_', u' ');
}

QString ZEVStringTransforms::withUnderscoresString(QStringView string)
{
    static const ZEVRegularExpression whitespace = ZEVRegularExpression::compile(u"\\s"_s).value();
    QString result = string.toString();
    for (const ZEVRange &range : whitespace.matchesInString(string).ranges)
        result[range.location] = u'_'; // all white space lies in the BMP
    return result;
}

const QSet<QString> &ZEVStringTransforms::upperCaseTerms() { return ZEVCaseTerms::upperCase().words; }

const QSet<QString> &ZEVStringTransforms::lowerCaseTerms() { return ZEVCaseTerms::lowerCase().words; }

const ZEVCharacterSet &ZEVStringTransforms::punctuationResetSet()
{
    static const ZEVCharacterSet set = ZEVCharacterSet::charactersInString(u".:'!?");
    return set;
}
