// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVTitleCase_p.h>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Buffer;
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
    Buffer result;
    qsizetype done = 0;
    for (const ZEVRange &range : untouched) {
        ZEVCaseMapping::append(result, text.sliced(done, range.location - done), Form::Lower, locale);
        ZEVCaseMapping::append(result, text.sliced(range.location, range.length));
        done = range.end();
    }
    ZEVCaseMapping::append(result, text.sliced(done), Form::Lower, locale);
    return ZEVCaseMapping::view(result).toString();
}

/// By whole characters: a letter of two UTF-16 units is no less a letter.
void appendLettersOf(QStringView word, Buffer &letters)
{
    static const ZEVCharacterSet letterSet = ZEVCharacterSet::letters();
    for (qsizetype i = 0; i < word.size(); ++i) {
        const bool isPair = word[i].isHighSurrogate() && i + 1 < word.size() && word[i + 1].isLowSurrogate();
        const char32_t character = isPair ? QChar::surrogateToUcs4(word[i], word[i + 1]) : word[i].unicode();
        if (letterSet.contains(character))
            ZEVCaseMapping::append(letters, word.sliced(i, isPair ? 2 : 1));
        i += isPair ? 1 : 0;
    }
}

} // namespace

QString ZEVStringTransforms::orvCapitalizedString(QStringView string, const ZEVCaseRules &caseRules)
{
    const ZEVCaseRules::Compiled &rules = caseRules.compiled();
    Buffer result;
    qsizetype done = 0;
    ZEVWordWalk words(string, rules);
    while (const auto word = words.next()) {
        ZEVCaseMapping::append(result, string.sliced(done, word->range.location - done));
        const QStringView text = string.sliced(word->range.location, word->range.length);
        if (word->isUntouched)
            ZEVCaseMapping::append(result, text);
        else
            ZEVAppendOrvCapitalizedWord(result, text, rules);
        done = word->range.end();
    }
    ZEVCaseMapping::append(result, string.sliced(done));
    return ZEVCaseMapping::view(result).toString();
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
    Buffer capitalized;
    ZEVCaseMapping::append(capitalized, result.sliced(first->location, first->length), Form::Capitalized,
                           rules.caseLocale);
    return result.replace(first->location, first->length, reinterpret_cast<const QChar *>(capitalized.data()),
                          capitalized.size());
}

QString ZEVStringTransforms::camelCaseString(QStringView string, const ZEVCaseRules &caseRules)
{
    const ZEVCaseRules::Compiled &rules = caseRules.compiled();
    Buffer result;
    Buffer letters;
    ZEVWordWalk words(string, rules);
    while (const auto word = words.next()) {
        letters.clear();
        appendLettersOf(string.sliced(word->range.location, word->range.length), letters);
        const QStringView text = ZEVCaseMapping::view(letters);
        if (word->isUntouched)
            ZEVCaseMapping::append(result, text);
        else
            ZEVCaseMapping::append(result, text, result.isEmpty() ? Form::Lower : Form::Capitalized,
                                   rules.caseLocale);
    }
    return ZEVCaseMapping::view(result).toString();
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
