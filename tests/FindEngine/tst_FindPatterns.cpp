// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace ZEVArrayPatternDisplaySupport;
using ZEVStringFilterRegexValue::filterRegexValue;

namespace {

using Item = ZEVPatternItem;

Item artistAt(const Item::Text &keyPath)
{
    Item item = Item::itemWithTitle(u"Artist"_s, std::nullopt, u"Artist"_s, u"(.*)"_s);
    item.setMetadataKeyPath(keyPath);
    return item;
}

QString found(const Item &item, const QString &text)
{
    QStringList texts;
    for (const auto &range : ZEVRegularExpression::compile(*item.regexString())->matchesInString(text).ranges)
        texts.append(text.mid(range.location, range.length));
    return texts.join(u'|');
}

/// The text with the coloured stretches in < and >.
QString marked(const ZEVAttributedString &display)
{
    QString text = display.string();
    for (auto range = display.formats().crbegin(); range != display.formats().crend(); ++range)
        text.insert(range->start + range->length, u'>').insert(range->start, u'<');
    return text;
}

const QVariant Digits = QVariant::fromValue(Item::digits());

ZEVFindPanelQuery query(const QVariantList &pattern, qint64 type = 0, bool insensitive = false)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setMatchingType(type);
    query.setCaseInsensitiveSearch(insensitive);
    return query;
}

template <typename T>
T archivedAndRestored(const T &object)
{
    const QByteArray archive = ZEVKeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(object));
    return ZEVKeyedUnarchiver::unarchivedObjectOfClass<T>(archive).value();
}

/// A host's scope that wants to be archived.
class ArchivedScope : public ZEVFindPanelScope, public ZEVKeyedCoding {
public:
    using ZEVFindPanelScope::ZEVFindPanelScope;
    QString classNameForCoder() const override { return u"ArchivedScope"_s; }
    void encodeWithCoder(ZEVKeyedArchiver &archiver) const override
    {
        archiver.encodeObject(title().value_or(QString()), u"title");
    }
};

} // namespace

/// The tokens of patterns, how patterns are shown, and the expressions that queries and filters make of them.
class tst_FindPatterns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theVocabularySearches()
    {
        const std::tuple<Item, QString, QString, QString, QString> rows[] = {
            {Item::wildCard(), u"Wildcard"_s, u"\uFF0A"_s, u"ab"_s, u"ab|"_s},
            {Item::anyCharacters(), u"Any Characters"_s, u"Any"_s, u"a\nbc"_s, u"a|bc"_s},
            {Item::anyCharacter(), u"Any Character"_s, u"Char"_s, u"ab"_s, u"a|b"_s},
            {Item::anyWord(), u"Any Word"_s, u"Word"_s, u"Été 12!"_s, u"Été|12"_s},
            {Item::whiteSpace(), u"White Space"_s, u" "_s, u"a \t b"_s, u" \t "_s},
            {Item::digits(), u"Digits"_s, u"#"_s, u"a12b٣"_s, u"12|٣"_s},
            {Item::tab(), u"Tab"_s, u"\u2192"_s, u"a\t\tb"_s, u"\t|\t"_s},
            {Item::lineBreak(), u"Line Break"_s, u"\u21B5"_s, u"a\n\nb"_s, u"\n|\n"_s},
            {Item::email(), u"Email Address"_s, u"Email"_s, u"me.you@example.org"_s, u"me.you@example.org"_s},
            {Item::email(), u"Email Address"_s, u"Email"_s, u"to me@example.org"_s, u""_s}, // anchored
            {Item::webAddress(), u"Web Address"_s, u"URL"_s,
             u"HTTP://Example.com/a_(b) or www.example.org."_s,
             u"HTTP://Example.com/a_(b)|www.example.org."_s},
        };
        for (const auto &[item, title, token, text, texts] : rows) {
            COMPARE_ROW(title, *item.title(), title);
            COMPARE_ROW(title, *item.tokenTitle(), token);
            COMPARE_ROW(title, found(item, text), texts);
        }
        QCOMPARE(*Item::tab().regexTemplateString(), u"\\\t");
        QCOMPARE(*Item::lineBreak().regexTemplateString(), u"\\\n");
        QCOMPARE(*Item::email().editingString() + *Item::webAddress().editingString(), u"(\\@)(\\URL)");

        QStringList titles;
        for (const Item &item : Item::escapeItems()) {
            titles.append(*item.title());
            QCOMPARE(item.editingString(), item.regexTemplateString());
        }
        QCOMPARE(titles.join(u'|'), u"Wildcard|Any Characters|Any Word|Any Character|White Space|Digits");
    }

    void equalityCountsWhatStandsInThePattern()
    {
        QVERIFY(Item::wildCard() != Item::anyCharacters());
        Item withoutTemplate = Item::tab();
        withoutTemplate.setRegexTemplateString(std::nullopt);
        QVERIFY(withoutTemplate != Item::tab()); // their effective templates differ
        QVERIFY(artistAt(u"artist"_s) != artistAt(std::nullopt));
        Item retitled = Item::tab();
        retitled.setTokenTitle(u"Tabulator"_s);
        QVERIFY(retitled != Item::tab());
        QVERIFY(artistAt(u""_s) != artistAt(std::nullopt)); // empty is not nil

        Item renamed = Item::digits();
        renamed.setTitle(u"Numbers"_s);
        renamed.setEditingString(std::nullopt);
        renamed.setRepresentsDate(true);
        const Item untitled = Item::itemWithTitle(u"#"_s, std::nullopt, std::nullopt, u"(\\d+)"_s);
        QCOMPARE(renamed, Item::digits());
        QCOMPARE(untitled, Item::digits()); // the title stands in for the token title
        QCOMPARE(QSet<Item>({Item::digits(), renamed, untitled}).size(), 1);
    }

    void archivesLoseWhatTheyAreToLose()
    {
        const Item tab = archivedAndRestored(Item::tab());
        QCOMPARE(*tab.regexTemplateString() + *tab.editingString(), u"(\\t)(\\t)");

        Item artist = artistAt(u"artist"_s);
        artist.setValueTransformerName(u"x"_s);
        artist.setRepresentsNumericValue(true);
        Item restored = archivedAndRestored(artist);
        QVERIFY(restored.isDummy());
        QVERIFY(!restored.valueTransformerName());
        QVERIFY(!restored.representsNumericValue());
        restored.setTitle(u"Other"_s); // the token title was archived as the title stood in for it
        QCOMPARE(*restored.tokenTitle(), u"Artist");
    }

    void archivesKeepEveryText()
    {
        for (const QString &text :
             {u""_s, u"a\0b"_s, u"\U0001F469\u200D\U0001F3A4e\u0301\uFFFC"_s, u"\xDC00 a\xD83C"_s}) {
            const Item made = Item::itemWithTitle(text, std::nullopt, std::nullopt, text);
            COMPARE_ROW(text, archivedAndRestored(made).title(), text);
            COMPARE_ROW(text, archivedAndRestored(made).regexString(), text);
            COMPARE_ROW(text, archivedAndRestored(made).editingString(), std::nullopt);
        }
    }

    void tokensLoseTheirOuterSpaceAtTheEndsAndHaveTheirColours()
    {
        const QVariant artist = QVariant::fromValue(artistAt(u"artist"_s));
        const std::tuple<QVariantList, QString, QString> rows[] = {
            {{}, {}, {}},
            {{u"a "_s, Digits, u"b"_s}, u"a  < # > b"_s, u"a [#]b"_s},
            {{Digits, artist}, u"< # >  < Artist >"_s, u"[#][Artist]"_s},
            {{u""_s, Digits}, u" < # >"_s, u"[#]"_s}, // an empty text counts
            {{12, Digits}, u"< # > "_s, u"[#]"_s}, // a skipped element does not
            {{u"a"_s, QVariant(), Digits}, u"a < # > "_s, u"a[#]"_s},
            {{QVariant::fromValue(Item())}, u"< (null) >"_s, u"[(null)]"_s},
        };
        for (const auto &[pattern, display, raw] : rows) {
            COMPARE_ROW(display, marked(patternDisplayString(pattern)), display);
            COMPARE_ROW(raw, patternRawDisplayString(pattern), raw);
        }

        const auto formats = patternDisplayString({Digits, artist}).formats();
        QCOMPARE(formats.at(0).format.background().color().name(QColor::HexArgb), u"#6632d8a9");
        QColor highlight = QGuiApplication::palette().color(QPalette::Highlight);
        highlight.setAlpha(102);
        QCOMPARE(formats.at(1).format.background().color().rgba(), highlight.rgba());
    }

    void matchingTypesWrapTheExpression()
    {
        const std::tuple<qint64, QString, QString> rows[] = {
            {0, u"a\\.b(\\d+)"_s, u"Contains"_s},
            {1, u"^a\\.b(\\d+)"_s, u"Begins With"_s},
            {2, u"\\ba\\.b(\\d+)\\b"_s, u"Matches Word"_s},
            {3, u"a\\.b(\\d+)$"_s, u"Ends With"_s},
            {4, u"a.b(\\d+)"_s, u"Regular Expression"_s},
            {5, u"^a\\.b(\\d+)$"_s, u"Matches Contents"_s},
            {6, u"a\\.b(\\d+)"_s, u"(null)"_s},
            {-1, u"a\\.b(\\d+)"_s, u"(null)"_s},
        };
        for (const auto &[type, pattern, title] : rows) {
            const auto made = query({u"a.b"_s, 7, Digits}, type, true).searchExpression(); // 7 is skipped
            COMPARE_ROW(type, made->pattern(), pattern);
            COMPARE_ROW(type, made->options(), ZEVRegularExpression::CaseInsensitive);
            COMPARE_ROW(type, ZEVFindPanelQuery::titleForMatchingType(type).value_or(u"(null)"_s), title);
        }
        const QVariant tab = QVariant::fromValue(Item::tab());
        QCOMPARE(query({tab}).searchExpression()->pattern(), u"(\\t)"); // its template is never searched for
    }

    void onlyWhatDoesNotCompileIsPresented()
    {
        QStringList presented;
        ZEVErrorPresentation::setPresenter(
            [&](const ZEVError &error) { presented.append(error.localizedDescription()); });
        QVERIFY(!ZEVFindPanelQuery().searchExpression());
        QVERIFY(!query({}).searchExpression());
        QVERIFY(query({u""_s}).searchExpression()); // an empty text is a pattern
        QVERIFY(query({u"(a"_s}).searchExpression()); // and a parenthesis literal
        QCOMPARE(presented.size(), 0);
        const auto broken = query({u"(a"_s}, ZEVFindPanelQuery::RegularExpression);
        QVERIFY(!broken.searchExpression());
        QVERIFY(!broken.searchExpression());
        ZEVErrorPresentation::setPresenter({});
        QCOMPARE(presented.size(), 2); // at every call
        QVERIFY(presented.first().contains(u"(a"));
    }

    void theTitleNamesScopeTypePatternAndCase()
    {
        auto made = query({u"a"_s, Digits}, 0, true);
        QCOMPARE(made.attributedTitle().string(), u"Contains \"a  # \"");
        made.setCaseInsensitiveSearch(false);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        const ZEVAttributedString title = made.attributedTitle();
        QCOMPARE(title.string(), u"Library, Contains \"a  # \", Case Sensitive");
        QCOMPARE(title.formats().size(), 1);
        QCOMPARE(title.string().mid(title.formats().first().start, title.formats().first().length), u" # ");
        made.setSearchPattern(std::nullopt);
        made.setMatchingType(9);
        made.setScope(std::make_shared<ZEVFindPanelScope>());
        QCOMPARE(made.attributedTitle().string(), u"(null), (null) \"\", Case Sensitive");
    }

    void equalityHashAndCopy()
    {
        const auto base = query({u"a"_s, Digits}, 2, true);
        QCOMPARE(base, query({u"a"_s, Digits}, 2, true));
        QCOMPARE(base.hash(), query({u"a"_s, Digits}, 2, true).hash());
        QVERIFY(base.hash() != query({u"a"_s, Digits}, 2, false).hash());
        auto nilPattern = query({});
        nilPattern.setSearchPattern(std::nullopt);
        QVERIFY(nilPattern != query({}));
        for (const auto &other : {query({u"a"_s, Digits}, 2, false), query({u"a"_s, Digits}, 3, true),
                                  query({Digits, u"a"_s}, 2, true)})
            QVERIFY(base != other);
        QVERIFY(query({u"\u00E9"_s}) != query({u"e\u0301"_s})); // by code units

        auto made = query({u"a"_s});
        QCOMPARE(made.copy(), made);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        QVERIFY(made.copy() != made);
        QCOMPARE(*made.copy().scope()->title(), u"Library");
    }

    void archivesNarrowTheTypeAndLoseThePlainScope()
    {
        for (const auto &[type, restored] : {std::pair(0, 0), {3, 1}, {256, 0}, {-1, 1}})
            COMPARE_ROW(type, archivedAndRestored(query({}, type)).matchingType(), restored);

        auto made = query({u"a"_s, Digits, QVariant(), u""_s}, 0, true);
        QCOMPARE(archivedAndRestored(made), made);
        QCOMPARE(archivedAndRestored(ZEVFindPanelQuery()).searchPattern(), std::nullopt);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        QVERIFY(!archivedAndRestored(made).scope());
        ZEVKeyedUnarchiver::registerClass(u"ArchivedScope"_s, [](ZEVKeyedUnarchiver &unarchiver) {
            return QVariant::fromValue<std::shared_ptr<ZEVFindPanelScope>>(
                std::make_shared<ArchivedScope>(unarchiver.decodeString(u"title")));
        });
        made.setScope(std::make_shared<ArchivedScope>(u"Selection"_s));
        QCOMPARE(*archivedAndRestored(made).scope()->title(), u"Selection");
    }

    void everyWordIsALiteralGroup()
    {
        const std::tuple<QString, QString> rows[] = {
            {u" a  b"_s, u".*().*(a).*().*(b).*"_s}, // empty words stay
            {u" "_s, u".*().*().*"_s},
            {u"a.b (c)"_s, u".*(a\\.b).*(\\(c\\)).*"_s},
            {u"a\tb"_s, u".*(a\tb).*"_s}, // other white space does not part
        };
        for (const auto &[filter, pattern] : rows)
            COMPARE_ROW(filter, filterRegexValue(filter)->pattern(), pattern);
        QVERIFY(filterRegexValue(u"ROCK é"_s)->rangeOfFirstMatchInString(u"Art rock, É"));
        QVERIFY(!filterRegexValue(u"york new"_s)->rangeOfFirstMatchInString(u"New York"));
        QVERIFY(!filterRegexValue(QString()));
    }

    void eightEqualWordsEnd()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
        const auto matches = filterRegexValue(u"a a a a a a a a b"_s)->matchesInString(QString(200, u'a'));
        QVERIFY(matches.limitReached);
        QVERIFY(matches.ranges.isEmpty());
    }
};

QTEST_MAIN(tst_FindPatterns)
#include "tst_FindPatterns.moc"
