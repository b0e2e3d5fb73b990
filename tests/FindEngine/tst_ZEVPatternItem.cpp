// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedUnarchiver.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Item = ZEVPatternItem;

Item placeholder(const QString &title, const QString &keyPath)
{
    Item item = Item::itemWithTitle(title, std::nullopt, title, u"(.*)"_s);
    item.setMetadataKeyPath(keyPath);
    return item;
}

std::optional<Item> archivedAndRestored(const Item &item)
{
    const QByteArray archive = ZEVKeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(item));
    return ZEVKeyedUnarchiver::unarchivedObjectOfClass<Item>(archive);
}

/// What the item's expression captures in \a text, in its outer group.
QStringList found(const Item &item, const QString &text)
{
    QStringList texts;
    const auto matches = ZEVRegularExpression::compile(*item.regexString())->matchesInString(text);
    for (const ZEVRange &range : matches.ranges)
        texts.append(text.mid(range.location, range.length));
    return texts;
}

} // namespace

class tst_ZEVPatternItem : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void vocabularySearches_data()
    {
        QTest::addColumn<Item>("item");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("wild card") << Item::wildCard() << u"ab"_s << QStringList{u"ab"_s, u""_s};
        QTest::newRow("any characters") << Item::anyCharacters() << u"a\nb"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("any character") << Item::anyCharacter() << u"ab"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("any word") << Item::anyWord() << u"Été 12!"_s << QStringList{u"Été"_s, u"12"_s};
        QTest::newRow("white space") << Item::whiteSpace() << u"a \t b"_s << QStringList{u" \t "_s};
        QTest::newRow("digits") << Item::digits() << u"a12b٣"_s << QStringList{u"12"_s, u"٣"_s};
        QTest::newRow("tab") << Item::tab() << u"a\t\tb"_s << QStringList{u"\t"_s, u"\t"_s};
        QTest::newRow("line break") << Item::lineBreak() << u"a\nb"_s << QStringList{u"\n"_s};
        QTest::newRow("e-mail") << Item::email() << u"me.you@example.org"_s
                                << QStringList{u"me.you@example.org"_s};
        QTest::newRow("e-mail is anchored") << Item::email() << u"to me@example.org"_s << QStringList{};
        QTest::newRow("web address") << Item::webAddress()
                                     << u"see HTTP://Example.com/a_(b) or www.example.org."_s
                                     << QStringList{u"HTTP://Example.com/a_(b)"_s, u"www.example.org."_s};
    }
    void vocabularySearches()
    {
        QFETCH(Item, item);
        QFETCH(QString, text);
        QTEST(found(item, text), "texts");
    }

    void vocabularyTexts_data()
    {
        QTest::addColumn<Item>("item");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("tokenTitle");
        QTest::addColumn<QString>("editingString");
        QTest::addColumn<QString>("regexTemplate");
        QTest::newRow("wild card") << Item::wildCard() << u"Wildcard"_s << u"\uFF0A"_s << u"(.*)"_s
                                   << u"(.*)"_s;
        QTest::newRow("any word") << Item::anyWord() << u"Any Word"_s << u"Word"_s << u"(\\w+)"_s
                                  << u"(\\w+)"_s;
        QTest::newRow("white space") << Item::whiteSpace() << u"White Space"_s << u" "_s << u"(\\s+)"_s
                                     << u"(\\s+)"_s;
        QTest::newRow("tab") << Item::tab() << u"Tab"_s << u"\u2192"_s << u"(\\t)"_s << u"\\\t"_s;
        QTest::newRow("line break") << Item::lineBreak() << u"Line Break"_s << u"\u21B5"_s << u"(\\n)"_s
                                    << u"\\\n"_s;
        QTest::newRow("e-mail") << Item::email() << u"Email Address"_s << u"Email"_s << u"(\\@)"_s
                                << *Item::email().regexString();
        QTest::newRow("web address") << Item::webAddress() << u"Web Address"_s << u"URL"_s << u"(\\URL)"_s
                                     << *Item::webAddress().regexString();
    }
    void vocabularyTexts()
    {
        QFETCH(Item, item);
        QTEST(*item.title(), "title");
        QTEST(*item.tokenTitle(), "tokenTitle");
        QTEST(*item.editingString(), "editingString");
        QTEST(*item.regexTemplateString(), "regexTemplate");
        QVERIFY(item.isDummy());
    }

    void escapeItemsStandInTheirOrder()
    {
        QStringList titles;
        for (const Item &item : Item::escapeItems())
            titles.append(*item.title());
        QCOMPARE(titles.join(u'|'), u"Wildcard|Any Characters|Any Word|Any Character|White Space|Digits");
    }

    void equalityCountsWhatStandsInThePattern()
    {
        QCOMPARE(Item::wildCard(), Item::wildCard());
        QVERIFY(Item::wildCard() != Item::anyCharacters());

        Item withoutTemplate = Item::tab();
        withoutTemplate.setRegexTemplateString(std::nullopt);
        QVERIFY(withoutTemplate != Item::tab()); // their effective templates differ

        const Item artist = placeholder(u"Artist"_s, u"artist"_s);
        Item wildcardLikeArtist = artist;
        wildcardLikeArtist.setMetadataKeyPath(std::nullopt);
        QVERIFY(artist != wildcardLikeArtist);
        QVERIFY(placeholder(u"Artist"_s, u""_s) != wildcardLikeArtist); // empty is not nil

        Item renamed = Item::digits();
        renamed.setTitle(u"Numbers"_s);
        renamed.setEditingString(std::nullopt);
        renamed.setRepresentsDate(true);
        QCOMPARE(renamed, Item::digits());
        QCOMPARE(renamed.hash(), Item::digits().hash());

        const Item untitled = Item::itemWithTitle(u"#"_s, std::nullopt, std::nullopt, u"(\\d+)"_s);
        QCOMPARE(untitled, Item::digits()); // the title stands in for the token title
        QCOMPARE(QSet<Item>({Item::digits(), renamed, untitled}).size(), 1);
    }

    void archivesLoseWhatTheyAreToLose()
    {
        const Item restoredTab = archivedAndRestored(Item::tab()).value();
        QCOMPARE(*restoredTab.regexTemplateString(), u"(\\t)");
        QCOMPARE(*restoredTab.editingString(), u"(\\t)");

        Item artist = placeholder(u"Artist"_s, u"artist"_s);
        artist.setValueTransformerName(u"x"_s);
        artist.setRepresentsNumericValue(true);
        const Item restored = archivedAndRestored(artist).value();
        QVERIFY(restored.isDummy());
        QVERIFY(!restored.valueTransformerName() && !restored.representsNumericValue());

        artist.setTitle(u"Other"_s); // the token title was archived as the title stood in for it
        Item renamed = restored;
        renamed.setTitle(u"Other"_s);
        QCOMPARE(*renamed.tokenTitle(), u"Artist");
        QCOMPARE(*artist.tokenTitle(), u"Other");
    }

    void archivesKeepEveryText_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("empty") << QString(u""_s);
        QTest::newRow("NUL") << QString(u"a\0b"_s);
        QTest::newRow("emoji and marks") << u"\U0001F469\u200D\U0001F3A4e\u0301\uFFFC"_s;
        QTest::newRow("lone surrogates") << u"\xDC00 a\xD83C"_s;
    }
    void archivesKeepEveryText()
    {
        QFETCH(QString, title);
        const Item restored =
            archivedAndRestored(Item::itemWithTitle(title, std::nullopt, std::nullopt, title)).value();
        QCOMPARE(restored.title(), title);
        QCOMPARE(restored.regexString(), title);
        QCOMPARE(restored.editingString(), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVPatternItem)
#include "tst_ZEVPatternItem.moc"
