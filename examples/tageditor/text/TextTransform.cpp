// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TextTransform.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringStrip.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <QLocale>

namespace {

QString withoutOuterSpaces(QStringView text)
{
    ZEVRange range =
        ZEVStringStrip::rangeOfSubstringByTrimmingCharactersInSet(text, ZEVCharacterSet::whitespace());
    // The range ends one unit after the start of its last character, and a title must not lose half an emoji.
    const bool cutsPair = range.length > 0 && range.end() < text.size()
        && text[range.end() - 1].isHighSurrogate() && text[range.end()].isLowSurrogate();
    if (cutsPair)
        ++range.length;
    return text.sliced(range.location, range.length).toString();
}

/// None around the text, and one wherever there are more; a line break is no space.
QString withSingleSpaces(QStringView text)
{
    QString single;
    for (const QChar character : withoutOuterSpaces(text)) {
        const bool isSpace = character == u'\t' || character.category() == QChar::Separator_Space;
        if (!isSpace)
            single += character;
        else if (!single.endsWith(u' '))
            single += u' ';
    }
    return single;
}

/// What Unicode calls punctuation (general category P). It lies in the first plane but for scripts that no
/// longer write.
const ZEVCharacterSet &punctuation()
{
    static const ZEVCharacterSet set = [] {
        QString characters;
        for (char16_t unit = 0x21; unit < QChar::ReplacementCharacter; ++unit) {
            if (QChar::isPunct(unit))
                characters += QChar(unit);
        }
        return ZEVCharacterSet::charactersInString(characters);
    }();
    return set;
}

/// A transform that knows no rules.
template <typename Function>
TextTransform withoutRules(const QString &name, Function function)
{
    return {name, [function](QStringView text, const ZEVCaseRules &) { return function(text); }, false};
}

QString withoutPunctuation(QStringView text)
{
    return ZEVStringStrip::stringByStrippingCharactersInSet(text, punctuation());
}

} // namespace

QString TextTransform::plainName() const { return QString(name).remove(u'&'); }

const QList<TextTransform> &TextTransform::all()
{
    static const QList<TextTransform> transforms{
        {tr("&Capitalize Words"), &ZEVStringTransforms::orvCapitalizedString, true},
        {tr("&Title Case"), &ZEVStringTransforms::orvTitleCaseString, true},
        {tr("&Sentence case"), &ZEVStringTransforms::sentenceCaseString, true},
        {tr("c&amelCase"), &ZEVStringTransforms::camelCaseString, true},
        withoutRules(tr("&Underscores to Spaces"), &ZEVStringTransforms::sansUnderscoresString),
        withoutRules(tr("S&paces to Underscores"), &ZEVStringTransforms::withUnderscoresString),
        withoutRules(tr("UPPER CASE"), [](QStringView text) { return QLocale().toUpper(text.toString()); }),
        withoutRules(tr("lower case"), [](QStringView text) { return QLocale().toLower(text.toString()); }),
        withoutRules(tr("T&rim Spaces"), &withoutOuterSpaces),
        withoutRules(tr("Single Spaces"), &withSingleSpaces),
        withoutRules(tr("Strip Pu&nctuation"), &withoutPunctuation),
    };
    return transforms;
}
