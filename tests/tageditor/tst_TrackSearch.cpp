// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/TrackSearch.h>
#include <tageditor/TrackTableModel.h>

#include <ZEVGlobalUtils/Platform/ZEVError.h>
#include <ZEVGlobalUtils/Platform/ZEVErrorPresentation.h>

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using Place = TrackFinderClient::Place;

namespace {

/// The first and the last cell, cells in a row, and rows that begin and end with empty cells.
QList<Track> someTracks()
{
    return {Samples::track({u"a.mp3"_s, u""_s, u"Abba"_s}),
            Samples::track({u""_s, u"ab ab"_s, u""_s, u""_s, u"1998"_s}),
            Samples::track({u"b.ogg"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"ab"_s})};
}

ZEVFindPanelQuery query(const QString &text, qint64 type = ZEVFindPanelQuery::RegularExpression)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(text.isEmpty() ? QVariantList() : QVariantList{text});
    query.setMatchingType(type);
    query.setCaseInsensitiveSearch(true);
    return query;
}

/// A search over a table, and its answers in short.
struct Fixture {
    explicit Fixture(const QList<Track> &tracks = someTracks()) { model.append(tracks); }

    void find(const QString &text)
    {
        search.setQuery(query(text));
        search.searchIfPending();
    }

    QList<Place> places() const
    {
        QList<Place> places;
        for (qsizetype n = 0; n < search.numberOfMatches().value_or(0); ++n)
            places.append(search.match(n));
        return places;
    }

    TrackTableModel model;
    TrackSearch search{&model};
};

} // namespace

class tst_TrackSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCellThatHasTextIsAPiece()
    {
        TrackTableModel model;
        TrackFinderClient client(model);
        QCOMPARE(client.stringLength(), 0);
        model.append(someTracks());
        client.takeInNewRows();
        QStringList pieces;
        qsizetype index = 0;
        for (ZEVRange range; index < client.stringLength(); index = range.end()) {
            pieces.append(client.stringAtIndex(index, range));
            QCOMPARE(range.location, index);
            QVERIFY(range.length > 0);
        }
        QCOMPARE(index, client.stringLength());
        QCOMPARE(pieces, (QStringList{u"a.mp3"_s, u"Abba"_s, u"ab ab"_s, u"1998"_s, u"b.ogg"_s, u"ab"_s}));
        ZEVRange beyond{7, 7};
        QCOMPARE(client.stringAtIndex(client.stringLength(), beyond), QString());
        QCOMPARE(beyond.length, 0);
    }

    void everyPositionLeadsBackToItsCell()
    {
        TrackTableModel model;
        model.append(someTracks());
        const TrackFinderClient client(model);
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < TrackFieldCount; ++column) {
                const TrackField field{column};
                const qsizetype start = client.rangeOfCell(row, field).location;
                const qsizetype size = model.track(row).text(field).size();
                for (qsizetype offset = 0; size > 0 && offset <= size; ++offset)
                    QCOMPARE(client.placeOfRange({start + offset, 0}), (Place{row, field, {offset, 0}}));
            }
        }
    }

    void matchesAreFoundInTheirCells()
    {
        Fixture table;
        table.find(u"ab"_s);
        QCOMPARE(table.places(),
                 (QList<Place>{{0, TrackField::Artist, {0, 2}},
                               {1, TrackField::Title, {0, 2}},
                               {1, TrackField::Title, {3, 2}},
                               {2, TrackField::Comment, {0, 2}}}));
        QCOMPARE(table.search.matchesInCell(1, TrackField::Title).ranges, (QList<ZEVRange>{{0, 2}, {3, 2}}));
        QCOMPARE(table.search.matchesInCell(2, TrackField::Comment).ranges, (QList<ZEVRange>{{0, 2}}));
        for (const TrackField empty : {TrackField::Title, TrackField::Comment})
            QVERIFY(table.search.matchesInCell(0, empty).ranges.isEmpty());
        table.find(u"8.*b"_s); // from one cell into the next
        QCOMPARE(table.search.numberOfMatches(), 0);
        table.find({});
        QCOMPARE(table.search.numberOfMatches(), std::nullopt);
    }

    void emptyMatchesStayInTheirCells()
    {
        Fixture table;
        table.find(u"^|$"_s);
        QCOMPARE(table.search.numberOfMatches(), 12); // two in each of the six cells
        QCOMPARE(table.search.matchesInCell(0, TrackField::FileName).ranges,
                 (QList<ZEVRange>{{0, 0}, {5, 0}}));
        QCOMPARE(table.search.matchesInCell(0, TrackField::Artist).ranges, (QList<ZEVRange>{{0, 0}, {4, 0}}));
    }

    void onlyTheLastOfManyChangesIsSearched()
    {
        Fixture table;
        const QSignalSpy searched(&table.search, &TrackSearch::searched);
        table.search.setQuery(query(u"a"_s));
        table.search.setQuery(query(u"1998"_s));
        QTRY_COMPARE(searched.size(), 1);
        QCOMPARE(table.search.numberOfMatches(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(searched.size(), 1);
    }

    void tracksThatComeInAreSearchedAndTheCurrentMatchStays()
    {
        Fixture table;
        table.find(u"ab"_s);
        table.search.step(TrackSearch::Backward);
        QCOMPARE(table.search.currentMatch(), 3);
        table.model.append(someTracks());
        table.model.append(someTracks());
        QCOMPARE(table.places().last(), (Place{2, TrackField::Comment, {0, 2}})); // still right until then
        QTRY_COMPARE(table.search.numberOfMatches(), 12);
        QCOMPARE(table.places().last(), (Place{8, TrackField::Comment, {0, 2}}));
        QCOMPARE(table.search.currentMatch(), 3);

        table.model.clear();
        QCOMPARE(table.search.numberOfMatches(), std::nullopt);
        QCOMPARE(table.search.currentMatch(), -1);
        table.model.append(someTracks());
        QTRY_COMPARE(table.search.numberOfMatches(), 4);
    }

    void theCurrentMatchMovesWithItsTrack()
    {
        Fixture table({Samples::track({u"c ab"_s, u"Track 10"_s}), Samples::track({u"b ab"_s, {}}),
                       Samples::track({u"a ab"_s, u"track 9 ab"_s})});
        table.find(u"ab"_s);
        table.search.step(TrackSearch::Forward);
        table.search.step(TrackSearch::Forward);
        QCOMPARE(table.places().at(table.search.currentMatch()), (Place{1, TrackField::FileName, {2, 2}}));
        const auto names = [&table] {
            QString initials;
            for (int row = 0; row < 3; ++row)
                initials += table.model.track(row).text(TrackField::FileName).front();
            return initials;
        };
        table.model.sort(int(TrackField::Title), Qt::AscendingOrder);
        QCOMPARE(names(), u"acb"_s); // by number, whatever the case, and without a title last
        QCOMPARE(table.places().at(table.search.currentMatch()), (Place{2, TrackField::FileName, {2, 2}}));
        table.model.sort(int(TrackField::Title), Qt::DescendingOrder);
        QCOMPARE(names(), u"cab"_s);
        table.model.sort(int(TrackField::FileName), Qt::AscendingOrder);
        QCOMPARE(names(), u"abc"_s);
        QCOMPARE(table.places(),
                 (QList<Place>{{0, TrackField::FileName, {2, 2}},
                               {0, TrackField::Title, {8, 2}},
                               {1, TrackField::FileName, {2, 2}},
                               {2, TrackField::FileName, {2, 2}}}));
        QCOMPARE(table.search.currentMatch(), 2);
    }

    void changedTextsAreSearchedOnceAndAgain()
    {
        Fixture table;
        table.find(u"ab"_s);
        table.search.step(TrackSearch::Backward);
        const int first = table.model.track(0).id;
        const int second = table.model.track(1).id;
        const QSignalSpy searched(&table.search, &TrackSearch::searched);
        const auto reverse = table.model.setTexts({{first, TrackField::Title, u"some words"_s}});
        const auto reverseOfMore = table.model.setTexts({{second, TrackField::Title, u"x ab"_s}});
        QVERIFY(table.search.matchesInCell(1, TrackField::Title).ranges.isEmpty()); // none is none too many
        QTRY_COMPARE(searched.size(), 1);
        QCOMPARE(table.places(),
                 (QList<Place>{{0, TrackField::Artist, {0, 2}},
                               {1, TrackField::Title, {2, 2}},
                               {2, TrackField::Comment, {0, 2}}}));
        QCOMPARE(table.search.matchesInCell(1, TrackField::Title).ranges, (QList<ZEVRange>{{2, 2}}));
        QCOMPARE(table.search.currentMatch(), 2); // the same place, whose number has changed

        table.model.setTexts(reverseOfMore);
        table.model.setTexts(reverse);
        table.search.step(TrackSearch::Backward); // does not wait
        QCOMPARE(table.search.numberOfMatches(), 4);
        QCOMPARE(table.places().at(table.search.currentMatch()), (Place{1, TrackField::Title, {3, 2}}));
    }

    void stepsGoAroundTheEnd()
    {
        Fixture table;
        table.find(u"ab"_s);
        QList<qsizetype> visited;
        for (const auto direction : {TrackSearch::Backward, TrackSearch::Backward, TrackSearch::Forward,
                                     TrackSearch::Forward, TrackSearch::Forward}) {
            table.search.step(direction);
            visited.append(table.search.currentMatch());
        }
        QCOMPARE(visited, (QList<qsizetype>{3, 2, 3, 0, 1}));
        QCOMPARE(table.search.matchesInCell(1, TrackField::Title).current, 0);
        QCOMPARE(table.search.matchesInCell(2, TrackField::Comment).current, -1);

        // Another pattern goes on from where the last match was, at once when it is not searched for yet.
        table.search.setQuery(query(u"b"_s));
        table.search.step(TrackSearch::Forward);
        QCOMPARE(table.search.match(table.search.currentMatch()), (Place{1, TrackField::Title, {1, 1}}));
        table.find(u"nowhere"_s);
        table.search.step(TrackSearch::Forward);
        QCOMPARE(table.search.currentMatch(), -1);
    }

    void anInvalidExpressionIsToldHereAndNowhereElse()
    {
        int presented = 0;
        ZEVErrorPresentation::setPresenter([&presented](const ZEVError &) { ++presented; });
        Fixture table;
        table.find(u"(ab"_s);
        QVERIFY2(table.search.error().contains(u"parenthesis"), qPrintable(table.search.error()));
        QCOMPARE(table.search.numberOfMatches(), std::nullopt);
        QCOMPARE(presented, 0);
        table.find(u"(ab)"_s);
        QCOMPARE(table.search.error(), QString());
        QCOMPARE(table.search.numberOfMatches(), 4);

        ZEVErrorPresentation::presentError({});
        QCOMPARE(presented, 1); // other errors go where they went before
        ZEVErrorPresentation::setPresenter({});
    }

    void aRunawayExpressionSaysSo()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
        Fixture table({Samples::track({QString(60, u'a') + u'!'}), Samples::track({u"aa"_s})});
        table.find(u"(a+)+$"_s);
        QVERIFY(table.search.isCutShort());
        QCOMPARE(table.places(), (QList<Place>{{1, TrackField::FileName, {0, 2}}}));
        table.find(u"a"_s);
        QVERIFY(!table.search.isCutShort());
    }
};

QTEST_GUILESS_MAIN(tst_TrackSearch)
#include "tst_TrackSearch.moc"
