// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QDeadlineTimer>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Hands out its strings one by one, each as a piece.
struct Pieces : ZEVTextFinderClient {
    explicit Pieces(const QStringList &strings)
        : pieces(strings)
    {
    }
    qsizetype stringLength() const override { return pieces.join(QString()).size(); }
    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override
    {
        ++asked;
        auto piece = pieces.begin();
        qsizetype location = 0;
        for (; index >= location + piece->size(); ++piece)
            location += piece->size();
        effectiveRange = {location, piece->size()};
        return *piece;
    }

    QStringList pieces;
    mutable int asked = 0;
};

/// Claims whatever length and range it is told to.
struct LyingClient : ZEVTextFinderClient {
    qsizetype stringLength() const override { return length; }
    QString stringAtIndex(qsizetype, ZEVRange &effectiveRange) const override
    {
        effectiveRange = range;
        return u"aa"_s;
    }

    qsizetype length = 0;
    ZEVRange range;
};

struct Finder : ZEVTextFinder {
    explicit Finder(ZEVTextFinderClient *client = nullptr) { setClient(client); }
    std::optional<qsizetype> find(const QString &pattern)
    {
        performSearchAgainstExpression(ZEVRegularExpression::compile(pattern));
        return numberOfMatches();
    }
};

} // namespace

class tst_ZEVTextFinder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZEVRegularExpression::setTimeLimit(250ms); }

    void matchesAreOffsetByTheirPiece()
    {
        Pieces client({u"Track 1"_s, u"x"_s, u"Track 22 Track 3"_s}), empty({});
        Finder finder(&client);
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
        QCOMPARE(finder.find(u"Track (\\d+)"_s), 3);
        QCOMPARE(finder.foundMatches(), (QList<ZEVRange>{{0, 7}, {8, 8}, {17, 7}}));
        QVERIFY(!finder.limitReached());
        QCOMPARE(finder.find(u"1x"_s), 0); // would span two pieces
        QCOMPARE(finder.find(u"^|$"_s), 6); // anchors at every piece, empty matches
        finder.performSearchAgainstExpression(std::nullopt);
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
        QVERIFY(finder.foundMatches().isEmpty());
        QCOMPARE(Finder().find(u"a"_s), std::nullopt);
        QCOMPARE(Finder(&empty).find(u"^"_s), std::nullopt);
    }

    void observersSeeTheCountGrowAndMaySearchAnew()
    {
        Pieces client({u"ab"_s, u"a"_s});
        Finder finder(&client);
        QList<std::optional<qsizetype>> counts;
        connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            counts.append(finder.numberOfMatches());
            QCOMPARE(finder.foundMatches().size(), finder.numberOfMatches().value_or(0));
            if (counts.size() == 6)
                finder.find(u"b"_s);
        });
        finder.find(u"a"_s);
        finder.find(u"z"_s);
        QCOMPARE(counts, (QList<std::optional<qsizetype>>{1, 2, std::nullopt, 0}));
        finder.find(u"a"_s);
        QCOMPARE(finder.foundMatches(), (QList<ZEVRange>{{1, 1}})); // nothing of the search that it ended
    }

    void aLongSearchLetsOthersHaveTheirTurn()
    {
        Pieces client(QStringList(100, u"a"_s));
        Finder finder(&client);
        finder.setSliceDuration(1ms);
        connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            for (QDeadlineTimer slow(3); finder.numberOfMatches() == 1 && !slow.hasExpired();) { }
        });
        const QSignalSpy performed(&finder, &ZEVTextFinder::searchPerformed);
        QVERIFY(finder.find(u"a"_s) < 100);
        QVERIFY(finder.isSearching());
        QVERIFY(performed.isEmpty());
        QTRY_COMPARE(performed.size(), 1);
        QCOMPARE(finder.numberOfMatches(), 100);

        finder.find(u"a"_s);
        finder.find(u"b"_s);
        QTRY_COMPARE(performed.size(), 2);
        QCOMPARE(finder.numberOfMatches(), 0);
        finder.find(u"a"_s);
        finder.finishSearch();
        QCOMPARE(finder.numberOfMatches(), 100);
        finder.find(u"a"_s);
        finder.setClient(nullptr); // as one does that goes
        QTRY_COMPARE(performed.size(), 4);
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
    }

    void anObserverMayDeleteTheFinderOrItsClient()
    {
        Pieces other({u"aaaa"_s, u"aa"_s});
        auto client = std::make_unique<Pieces>(other.pieces);
        Finder finder(client.get());
        connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            if (finder.numberOfMatches() == 2) {
                finder.setClient(nullptr);
                client.reset();
            }
        });
        QCOMPARE(finder.find(u"a"_s), 2);

        QPointer<Finder> dying = new Finder(&other);
        connect(dying, &ZEVTextFinder::numberOfMatchesChanged, this, [&] { delete dying; });
        dying->performSearchAgainstExpression(ZEVRegularExpression::compile(u"a"_s));
        QVERIFY(!dying);
    }

    void clientsAreNotTrusted()
    {
        constexpr qsizetype Huge = std::numeric_limits<qsizetype>::max();
        const std::tuple<const char *, qsizetype, ZEVRange, qsizetype> rows[] = {
            {"a piece of no length ends the walk", 4, {0, 0}, 0},
            {"negative", 4, {0, -2}, 0},
            {"more than there is", 4, {0, 9}, 2},
            {"near the end of numbers", Huge, {0, Huge - 1}, 4},
        };
        for (const auto &[name, length, range, found] : rows) {
            LyingClient client;
            client.length = length;
            client.range = range;
            COMPARE_ROW(name, Finder(&client).find(u"a"_s), found);
        }
    }

    /// The pieces around a runaway one are searched as if it were not there.
    void whatPeopleTypeEnds()
    {
        const QVariant url = QVariant::fromValue(ZEVPatternItem::webAddress());
        const QVariant wild = QVariant::fromValue(ZEVPatternItem::wildCard());
        const std::tuple<const char *, QVariantList, qint64, QString> rows[] = {
            {"web address and more", {url, u"~"_s}, 0, u"http://x.com/("_s + QString(37, u'a') + u'!'},
            {"nested repetition", {u"(a+)+$"_s}, 4, QString(40, u'a') + u'!'},
            {"four wildcards", {wild, wild, wild, wild}, 5, QString(158, u'a') + u"\n\n"_s},
        };
        ZEVRegularExpression::setTimeLimit(100ms); // a fast machine may come to an end within the usual limit
        for (const auto &[name, pattern, type, text] : rows) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
            ZEVFindPanelQuery query;
            query.setSearchPattern(pattern);
            query.setMatchingType(type);
            Pieces client({u"www.example.org~"_s, text, u"x"_s, u"www.example.org~"_s});
            Finder finder(&client);
            finder.performSearchAgainstExpression(query.searchExpression());
            QVERIFY2(finder.limitReached(), name);
            COMPARE_ROW(name, client.asked, 4);

            client.pieces.removeAt(1);
            const auto found = finder.numberOfMatches();
            finder.performSearchAgainstExpression(query.searchExpression());
            QVERIFY2(!finder.limitReached() && found == finder.numberOfMatches(), name);
        }
    }

    void aWalkOfRunawaysEnds()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s)); // and once only
        QTest::failOnWarning(QRegularExpression(u"."_s));
        Pieces client(QStringList(500, QString(60, u'a') + u'!'));
        Finder finder(&client);
        QCOMPARE(finder.find(u"(a+)+$"_s), 0);
        QVERIFY(finder.limitReached());
        QVERIFY2(client.asked >= 3 && client.asked <= 6, qPrintable(QString::number(client.asked)));
        QCOMPARE(finder.find(u"!"_s), 500); // the next search begins afresh
        QVERIFY(!finder.limitReached());
    }
};

QTEST_GUILESS_MAIN(tst_ZEVTextFinder)
#include "tst_ZEVTextFinder.moc"
