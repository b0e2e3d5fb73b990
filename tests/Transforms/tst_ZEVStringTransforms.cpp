// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringStrip.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

using namespace Qt::StringLiterals;
using namespace ZEVStringStrip;
using namespace ZEVStringTransforms;

namespace {

using Transform = QString (*)(QStringView, const ZEVCaseRules &);
constexpr Transform title = orvTitleCaseString;
constexpr Transform capitals = orvCapitalizedString;
constexpr Transform sentence = sentenceCaseString;
constexpr Transform camel = camelCaseString;

ZEVCaseRules rulesFor(const char *locale)
{
    return ZEVCaseRules(
        {.upperCaseTerms = QStringList{u"dij"_s}, .locale = QLocale(QString::fromLatin1(locale))});
}

} // namespace

class tst_ZEVStringTransforms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theListsAreComplete()
    {
        QCOMPARE(upperCaseTerms().size(), 11);
        QCOMPARE(lowerCaseTerms().size(), 41);
    }

    void transforms()
    {
        const std::tuple<Transform, QString, QString> rows[] = {
            {title, u"the best of (the early years) vol. II"_s, u"The Best of (The Early Years) vol. II"_s},
            {title, u"the"_s, u"The"_s},
            {title, u"the."_s, u"the."_s},
            {title, u"rock and: and roll"_s, u"Rock and: And Roll"_s},
            {title, u"(the) [of it"_s, u"(The) [Of It"_s}, // a bracket counts at index 0, too
            {title, u"love ( and theft)"_s, u"Love ( and Theft)"_s}, // but not before a space
            {title, u"why?\u3000\t the end"_s, u"Why?\u3000\t The End"_s},
            {title, u"why?\nthe end"_s, u"Why?\nthe End"_s}, // a line end is no white space
            {title, u"so ’ the end"_s, u"So ’ the End"_s},
            {title, u"so! the vs. the a' the – the; the x"_s, u"So! The vs. The a' The – the; the X"_s},
            {title, u"7 the end"_s, u"7 the End"_s},
            {title, u"what is it for"_s, u"What Is It For"_s},
            {title, u"bach feat. vs."_s, u"Bach feat. vs."_s},
            {title, u"AND THE BAND"_s, u"And the Band"_s},
            {title, u"part ii and II MIX LIV CD CCCCC"_s, u"Part Ii and II MIX LIV CD Ccccc"_s},
            {title, u"a 1ST 1st 22nd ٣rd St st th"_s, u"A 1st 1st 22nd ٣rd St st th"_s},
            {title, u"my dj's Dj k7 idm"_s, u"My Dj's DJ K7 IDM"_s},
            {title, u"comme ÇA va"_s, u"Comme ça Va"_s},
            {title, u"ßa the b"_s, u"Ssa the B"_s},
            {title, {}, {}},
            {title, u" -- "_s, u" -- "_s},
            {title, u"a \U0001F468‍\U0001F469 the ￼\0 of\xD83C the\xDC00"_s,
             u"A \U0001F468‍\U0001F469 the ￼\0 of\xD83C The\xDC00"_s},
            {capitals, u"skufluv dj: ID3 cD, 1ST ep the"_s, u"Skufluv DJ: Id3 CD, 1st EP The"_s},
            {sentence, u"  DJ World. THE CD"_s, u"  Dj world. the cd"_s},
            {sentence, u"..."_s, u"..."_s},
            {sentence, u"Η ΟΔΟΣ"_s, u"Η οδος"_s},
            {camel, u"hello big cd"_s, u"helloBigCd"_s},
            {camel, u"3d art now"_s, u"dArtNow"_s},
            {camel, u"42 IS it"_s, u"isIt"_s}, // the first word strips to nothing
            {camel, u"ROCK'N'roll don't"_s, u"rocknrollDont"_s},
            {camel, u"a e\u0301\U00010428b"_s, u"aE\u0301\U00010428b"_s},
        };
        for (const auto &[transform, text, expected] : rows)
            COMPARE_ROW(text, transform(text, {}), expected);
        QCOMPARE(withUnderscoresString(u"a\tb  c\n\u00A0\u3000_"), u"a_b__c____"_s);
        QCOMPARE(sansUnderscoresString(u"a__b_"), u"a  b "_s);
    }

    void theCallersLists()
    {
        const ZEVCaseRules rules({.upperCaseTerms = QStringList{u"bbc"_s, u"USA"_s},
                                  .lowerCaseTerms = QStringList{u"Van"_s, u"der"_s}});
        QCOMPARE(title(u"the van der AND cd bbc", rules), u"The van der And Cd BBC"_s);
        QCOMPARE(capitals(u"cd usa", rules), u"Cd USA"_s);
        const ZEVCaseRules none({.upperCaseTerms = QStringList(), .lowerCaseTerms = QStringList()});
        QCOMPARE(title(u"one of a dj", none), u"One Of A Dj"_s);
    }

    void spellingsAreNeverTouched()
    {
        const ZEVCaseRules rules(
            {.untouchedSpellings = {u"AC/DC"_s, u"deadmau5"_s, u"k.d. lang"_s, u"AC/DC revival"_s,
                                    u"(hed) p.e."_s, u"!"_s, QString()}});
        const std::tuple<Transform, QString, QString> rows[] = {
            {title, u"deadmau5 and k.d. lang's the end"_s, u"deadmau5 and k.d. lang's the End"_s},
            {title, u"DEADMAU5 k.d. Lang"_s, u"Deadmau5 K.d. Lang"_s},
            {title, u"deadmau52 undeadmau5 k.d. language"_s, u"Deadmau52 Undeadmau5 K.d. Language"_s},
            {title, u"live with AC/DC revival"_s, u"Live with AC/DC revival"_s}, // the longest wins
            {title, u"by the (hed) p.e."_s, u"By the (hed) p.e."_s},
            {title, u"hed) p.e."_s, u"Hed) P.e."_s},
            {title, u"x deadmau5\U0001F3B5 deadmau5"_s, u"X deadmau5\U0001F3B5 deadmau5"_s},
            {capitals, u"deadmau5 live"_s, u"deadmau5 Live"_s},
            {sentence, u"deadmau5 LIVE AC/DC"_s, u"deadmau5 live AC/DC"_s},
            {sentence, u"LIVE k.d. lang AND AC/DC"_s, u"Live k.d. lang and AC/DC"_s},
            {camel, u"Live deadmau5 AC/DC"_s, u"livedeadmauACDC"_s},
        };
        for (const auto &[transform, text, expected] : rows)
            COMPARE_ROW(text, transform(text, rules), expected);
    }

    void localesHaveTheirOwnCase()
    {
        QCOMPARE(title(u"istanbul IRMAK", rulesFor("tr_TR")), u"İstanbul Irmak"_s);
        QCOMPARE(sentence(u"IRMAK DİYARI", rulesFor("tr_TR")), u"Irmak diyarı"_s);
        QCOMPARE(capitals(u"dij dıj", rulesFor("tr_TR")), u"DİJ Dıj"_s);
        QCOMPARE(title(u"het ijs", rulesFor("nl_NL")), u"Het IJs"_s);
        QCOMPARE(title(u"het ijs", {}), u"Het Ijs"_s);
    }

    void largeTextsLoseNothing()
    {
        const QString piece = u"the \xD83Cof 日本語 ไทย \U0001F468‍\U0001F469 x\xDC00￼ "_s;
        const QString text = piece.repeated(1'000'000 / piece.size()) + QString(200'000, u' ') + u"end"_s;
        for (const Transform transform : {title, capitals, sentence})
            QCOMPARE(transform(text, {}).compare(text, Qt::CaseInsensitive), 0);
        QCOMPARE(withUnderscoresString(text).count(u'_'), text.count(u' '));
        QCOMPARE(title(QString(1'000'000, u'a'), {}).size(), 1'000'000);
    }

    void strippingLooksAtUnitsAndTrimmingAtCharacters()
    {
        const auto set = ZEVCharacterSet::charactersInString(u"aeiou\U0001F3B5");
        QCOMPARE(stringByStrippingCharactersInSet(u"a bouquet\U0001F3B5", set), u" bqt\U0001F3B5"_s);
        QCOMPARE(stringByStrippingCharactersInSet(u"\U0001F3B5ab", set.inverted()), u"a"_s);
        QCOMPARE(rangeOfSubstringByTrimmingCharactersInSet(u"\U0001F3B5xy\U0001F3B5", set), (ZEVRange{2, 2}));

        const std::tuple<QString, ZEVRange> rows[] = {
            {u"   "_s, {0, 0}},
            {{}, {0, 0}},
            {u"\ta b\u00A0"_s, {1, 3}},
            {u" \n "_s, {1, 1}}, // a line end is no white space
            {u" \U0001F3B5a\U0001F3B5 "_s, {1, 4}}, // a last pair loses its second unit
            {u" \xDC00 "_s, {1, 1}},
        };
        for (const auto &[text, range] : rows)
            QVERIFY2(rangeOfSubstringByTrimmingCharactersInSet(text, ZEVCharacterSet::whitespace()) == range,
                     qPrintable(text));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVStringTransforms)
#include "tst_ZEVStringTransforms.moc"
