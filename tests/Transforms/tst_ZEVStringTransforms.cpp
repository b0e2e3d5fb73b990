// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringTransforms.h>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace ZEVStringTransforms;

namespace {

using Transform = QString (*)(QStringView, const ZEVCaseRules &);

ZEVCaseRules rulesFor(const char *locale)
{
    return ZEVCaseRules({.locale = QLocale(QString::fromLatin1(locale))});
}

} // namespace

Q_DECLARE_METATYPE(Transform)

class tst_ZEVStringTransforms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theListsAreComplete()
    {
        QCOMPARE(upperCaseTerms().size(), 11);
        QCOMPARE(lowerCaseTerms().size(), 41);
        QVERIFY(lowerCaseTerms().contains(u"\u00E7a"_s));
        QCOMPARE(&upperCaseTerms(), &upperCaseTerms());
        for (const QChar unit : u".:'!?"_s)
            QVERIFY(punctuationResetSet().contains(unit.unicode()));
        QVERIFY(!punctuationResetSet().contains(u'\u2019') && !punctuationResetSet().contains(u';'));
    }

    void titleCase_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &text, const QString &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("the whole", u"the best of the beatles (the early years) vol. II"_s,
            u"The Best of the Beatles (The Early Years) vol. II"_s);
        row("a colon resets", u"part 2: the return"_s, u"Part 2: The Return"_s);
        row("one word", u"the"_s, u"The"_s);
        row("one word and a full stop", u"the."_s, u"the."_s);
        row("inner", u"Rock and roll"_s, u"Rock and Roll"_s);
        row("reset before inner", u"rock: and roll"_s, u"Rock: And Roll"_s);
        row("bracket", u"love (and theft)"_s, u"Love (And Theft)"_s);
        row("bracket at index 0", u"(the) [of it"_s, u"(The) [Of It"_s);
        row("space after a bracket resets nothing", u"love ( and theft)"_s, u"Love ( and Theft)"_s);
        row("white space back to a reset", u"why?\u3000\t the end"_s, u"Why?\u3000\t The End"_s);
        row("a line end is no white space", u"why?\nthe end"_s, u"Why?\nthe End"_s);
        row("only the apostrophe that is straight", u"so' the ’ the end"_s, u"So' The ’ the End"_s);
        row("semicolon and dash", u"one; the - of x"_s, u"One; the - of X"_s);
        row("last word", u"what is it for"_s, u"What Is It For"_s);
        row("last words with full stops", u"bach feat. vs."_s, u"Bach feat. vs."_s);
        row("not lower-cased first", u"AND THE BAND"_s, u"And the Band"_s);
        row("numeral only in capitals", u"part ii and II"_s, u"Part Ii and II"_s);
        row("capitals that spell a numeral", u"MIX LIV CD CCCCC"_s, u"MIX LIV CD Ccccc"_s);
        row("ordinals", u"a 1ST 1st 22nd St st th"_s, u"A 1st 1st 22nd St st th"_s);
        row("ordinal in other digits", u"x ٣rd x"_s, u"X ٣rd X"_s);
        row("upper-case terms", u"my dj's Dj k7 idm"_s, u"My Dj's DJ K7 IDM"_s);
        row("cedilla", u"comme ÇA va"_s, u"Comme ça Va"_s);
        row("sharp s grows", u"ßa the b"_s, u"Ssa the B"_s);
        row("the first character is not looked at", u"?: the of x"_s, u"?: The of X"_s);
        row("one separator at index 0", u"7 the end"_s, u"7 the End"_s);
        row("empty", QString(), QString());
        row("no word", u" -- "_s, u" -- "_s);
        row("emoji, object, NUL and halves", u"a \U0001F468‍\U0001F469 the ￼\0 of\xD83C the\xDC00"_s,
            u"A \U0001F468‍\U0001F469 the ￼\0 of\xD83C The\xDC00"_s);
    }
    void titleCase()
    {
        QFETCH(QString, text);
        QTEST(orvTitleCaseString(text), "expected");
    }

    void otherTransforms_data()
    {
        QTest::addColumn<Transform>("transform");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Transform transform, const QString &text,
                            const QString &expected) {
            QTest::newRow(name) << transform << text << expected;
        };
        row("capitalised", orvCapitalizedString, u"skufluv at the bbc"_s, u"Skufluv At The Bbc"_s);
        row("capitalised terms", orvCapitalizedString, u"dj: ID3 cD, 1ST ep"_s, u"DJ: Id3 CD, 1st EP"_s);
        row("sentence", sentenceCaseString, u"  HELLO World. THE CD"_s, u"  Hello world. the cd"_s);
        row("sentence without terms", sentenceCaseString, u"DJ set"_s, u"Dj set"_s);
        row("sentence without words", sentenceCaseString, u"..."_s, u"..."_s);
        row("sentence that ends in sigma", sentenceCaseString, u"Η ΟΔΟΣ"_s, u"Η οδος"_s);
        row("camel", camelCaseString, u"hello big world"_s, u"helloBigWorld"_s);
        row("camel, digit in the first word", camelCaseString, u"3d art now"_s, u"dArtNow"_s);
        row("camel, first word strips to nothing", camelCaseString, u"42 IS it"_s, u"isIt"_s);
        row("camel, apostrophes", camelCaseString, u"ROCK'N'roll don't"_s, u"rocknrollDont"_s);
        row("camel, no terms", camelCaseString, u"the cd"_s, u"theCd"_s);
        row("camel, a mark and a pair", camelCaseString, u"a e\u0301\U00010428b"_s, u"aE\u0301\U00010428b"_s);
        row("camel, empty", camelCaseString, QString(), QString());
    }
    void otherTransforms()
    {
        QFETCH(Transform, transform);
        QFETCH(QString, text);
        QTEST(transform(text, {}), "expected");
    }

    void underscores()
    {
        QCOMPARE(withUnderscoresString(u"a\tb  c\n\u00A0\u3000_"), u"a_b__c____"_s);
        QCOMPARE(sansUnderscoresString(u"a__b_"), u"a  b "_s);
        QCOMPARE(withUnderscoresString(u""), u""_s);
    }

    void theCallersLists()
    {
        const ZEVCaseRules rules({.upperCaseTerms = QStringList{u"bbc"_s, u"USA"_s},
                                  .lowerCaseTerms = QStringList{u"Van"_s, u"der"_s}});
        QCOMPARE(orvTitleCaseString(u"the van der AND cd bbc", rules), u"The van der And Cd BBC"_s);
        QCOMPARE(orvCapitalizedString(u"cd usa", rules), u"Cd USA"_s);
        const ZEVCaseRules none({.upperCaseTerms = QStringList(), .lowerCaseTerms = QStringList()});
        QCOMPARE(orvTitleCaseString(u"one of a dj", none), u"One Of A Dj"_s);
        QCOMPARE(orvTitleCaseString(u"one of a dj"), u"One of a DJ"_s);
    }

    void spellingsAreNeverTouched_data()
    {
        QTest::addColumn<Transform>("transform");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Transform transform, const QString &text,
                            const QString &expected) {
            QTest::newRow(name) << transform << text << expected;
        };
        const Transform title = orvTitleCaseString;
        row("first", title, u"deadmau5 and the rest"_s, u"deadmau5 and the Rest"_s);
        row("several words, possessive", title, u"k.d. lang's the end"_s, u"k.d. lang's the End"_s);
        row("spelt otherwise", title, u"DEADMAU5 k.d. Lang"_s, u"Deadmau5 K.d. Lang"_s);
        row("within longer words", title, u"deadmau52 undeadmau5 k.d. language"_s,
            u"Deadmau52 Undeadmau5 K.d. Language"_s);
        row("the longest wins", title, u"live with AC/DC revival"_s, u"Live with AC/DC revival"_s);
        row("punctuation leads", title, u"by the (hed) p.e."_s, u"By the (hed) p.e."_s);
        row("it begins with what the text lacks", title, u"hed) p.e."_s, u"Hed) P.e."_s);
        row("before an emoji, at the end of a text", title, u"x deadmau5\U0001F3B5 deadmau5"_s,
            u"X deadmau5\U0001F3B5 deadmau5"_s);
        row("capitalised", orvCapitalizedString, u"deadmau5 live"_s, u"deadmau5 Live"_s);
        row("sentence begins with it", sentenceCaseString, u"deadmau5 LIVE AC/DC"_s,
            u"deadmau5 live AC/DC"_s);
        row("sentence", sentenceCaseString, u"LIVE k.d. lang AND AC/DC"_s, u"Live k.d. lang and AC/DC"_s);
        row("camel", camelCaseString, u"Live deadmau5 AC/DC"_s, u"livedeadmauACDC"_s);
    }
    void spellingsAreNeverTouched()
    {
        static const ZEVCaseRules rules(
            {.untouchedSpellings = {u"AC/DC"_s, u"deadmau5"_s, u"k.d. lang"_s, u"AC/DC revival"_s,
                                    u"(hed) p.e."_s, u"!"_s, QString()}});
        QFETCH(Transform, transform);
        QFETCH(QString, text);
        QTEST(transform(text, rules), "expected");
    }

    void localesHaveTheirOwnCase()
    {
        QCOMPARE(orvTitleCaseString(u"istanbul IRMAK", rulesFor("tr_TR")), u"İstanbul Irmak"_s);
        QCOMPARE(sentenceCaseString(u"IRMAK İSTANBUL", rulesFor("tr_TR")), u"Irmak istanbul"_s);
        QCOMPARE(sentenceCaseString(u"IRMAK DİYARI", rulesFor("tr_TR")), u"Irmak diyarı"_s);
        QCOMPARE(orvTitleCaseString(u"het ijs", rulesFor("nl_NL")), u"Het IJs"_s);
        QCOMPARE(orvTitleCaseString(u"het ijs"), u"Het Ijs"_s);
        QCOMPARE(orvTitleCaseString(u"die straße", rulesFor("de_DE")), u"Die Straße"_s);
        const ZEVCaseRules turkish(
            {.upperCaseTerms = QStringList{u"dij"_s}, .locale = QLocale(QLocale::Turkish)});
        QCOMPARE(orvCapitalizedString(u"dij dıj", turkish), u"DİJ Dıj"_s);
    }

    void largeTextsLoseNothing()
    {
        const QString piece = u"the \xD83Cof 日本語 ไทย \U0001F468‍\U0001F469 x\xDC00￼ "_s;
        const QString text = piece.repeated(1'000'000 / piece.size()) + QString(200'000, u' ') + u"end"_s;
        for (const Transform transform : {orvTitleCaseString, orvCapitalizedString, sentenceCaseString})
            QCOMPARE(transform(text, {}).compare(text, Qt::CaseInsensitive), 0);
        QCOMPARE(withUnderscoresString(text).count(u'_'), text.count(u' '));
        QCOMPARE(orvTitleCaseString(QString(1'000'000, u'a')).size(), 1'000'000);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVStringTransforms)
#include "tst_ZEVStringTransforms.moc"
