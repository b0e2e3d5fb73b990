// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Hands out its strings one by one, each as a piece.
class Pieces : public ZEVTextFinderClient {
public:
    explicit Pieces(const QStringList &pieces)
        : m_pieces(pieces)
    {
    }

    qsizetype stringLength() const override { return m_pieces.join(QString()).size(); }

    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override
    {
        ++asked;
        qsizetype location = 0;
        for (const QString &piece : m_pieces) {
            if (index < location + piece.size()) {
                effectiveRange = {location, piece.size()};
                return piece;
            }
            location += piece.size();
        }
        return {};
    }

    mutable int asked = 0;

private:
    QStringList m_pieces;
};

/// Claims whatever length and range it is told to.
class LyingClient : public ZEVTextFinderClient {
public:
    LyingClient(qsizetype length, ZEVRange range)
        : m_length(length)
        , m_range(range)
    {
    }
    qsizetype stringLength() const override { return m_length; }
    QString stringAtIndex(qsizetype, ZEVRange &effectiveRange) const override
    {
        effectiveRange = m_range;
        return u"aa"_s;
    }

private:
    qsizetype m_length;
    ZEVRange m_range;
};

std::optional<ZEVRegularExpression> expression(const QString &pattern)
{
    return ZEVRegularExpression::compile(pattern);
}

std::optional<ZEVRegularExpression> tokens(const QVariantList &pattern, qint64 type)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setMatchingType(type);
    return query.searchExpression();
}

} // namespace

class tst_ZEVTextFinder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZEVRegularExpression::setTimeLimit(250ms); }

    void matchesAreOffsetByTheirPiece()
    {
        Pieces client({u"Track 1"_s, u"x"_s, u"Track 22 Track 3"_s});
        ZEVTextFinder finder;
        finder.setClient(&client);
        finder.performSearchAgainstExpression(expression(u"Track (\\d+)"_s));
        QCOMPARE(finder.foundMatches(), (QList<ZEVRange>{{0, 7}, {8, 8}, {17, 7}}));
        QCOMPARE(finder.numberOfMatches(), 3);
        QVERIFY(!finder.limitReached());

        finder.performSearchAgainstExpression(expression(u"1x"_s)); // would span two pieces
        QCOMPARE(finder.numberOfMatches(), 0);
        QVERIFY(finder.foundMatches().isEmpty());
        finder.performSearchAgainstExpression(expression(u"^|$"_s)); // anchors at every piece, empty matches
        QCOMPARE(finder.numberOfMatches(), 6);
    }

    void theCountIsNilWhereNothingWasSearched()
    {
        Pieces client({u"aaa"_s});
        Pieces empty({});
        ZEVTextFinder finder;
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
        finder.performSearchAgainstExpression(expression(u"a"_s)); // no client
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
        finder.setClient(&client);
        finder.performSearchAgainstExpression(expression(u"a"_s));
        QCOMPARE(finder.numberOfMatches(), 3);
        finder.performSearchAgainstExpression(std::nullopt);
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
        QVERIFY(finder.foundMatches().isEmpty());
        finder.setClient(&empty);
        finder.performSearchAgainstExpression(expression(u"^"_s));
        QCOMPARE(finder.numberOfMatches(), std::nullopt);
    }

    void observersSeeTheCountGrow()
    {
        Pieces client({u"ab"_s, u"a"_s});
        ZEVTextFinder finder;
        finder.setClient(&client);
        QList<std::optional<qsizetype>> counts;
        connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            counts.append(finder.numberOfMatches());
            QCOMPARE(finder.foundMatches().size(), finder.numberOfMatches().value_or(0));
        });
        finder.performSearchAgainstExpression(expression(u"a"_s));
        finder.performSearchAgainstExpression(expression(u"z"_s));
        QCOMPARE(counts, (QList<std::optional<qsizetype>>{1, 2, std::nullopt, 0}));
    }

    void anObserverMaySearchAnew()
    {
        Pieces client({u"aaaa"_s, u"bb"_s});
        ZEVTextFinder finder;
        finder.setClient(&client);
        const auto once = connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            if (finder.numberOfMatches() == 2 && finder.foundMatches().first().location == 0)
                finder.performSearchAgainstExpression(expression(u"b"_s));
        });
        finder.performSearchAgainstExpression(expression(u"a"_s));
        QCOMPARE(finder.foundMatches(), (QList<ZEVRange>{{4, 1}, {5, 1}}));
        QCOMPARE(finder.numberOfMatches(), 2);
    }

    void anObserverMayDeleteTheFinderOrItsClient()
    {
        auto client = std::make_unique<Pieces>(QStringList{u"aaaa"_s, u"aa"_s});
        ZEVTextFinder finder;
        finder.setClient(client.get());
        connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            if (finder.numberOfMatches() == 2) {
                finder.setClient(nullptr);
                client.reset();
            }
        });
        finder.performSearchAgainstExpression(expression(u"a"_s));
        QCOMPARE(finder.numberOfMatches(), 2);

        Pieces other({u"aaaa"_s, u"aa"_s});
        QPointer<ZEVTextFinder> dying = new ZEVTextFinder;
        dying->setClient(&other);
        connect(dying, &ZEVTextFinder::numberOfMatchesChanged, this, [&] { delete dying; });
        dying->performSearchAgainstExpression(expression(u"a"_s));
        QVERIFY(!dying);
    }

    void clientsAreNotTrusted_data()
    {
        constexpr qsizetype Huge = std::numeric_limits<qsizetype>::max();
        QTest::addColumn<qsizetype>("length");
        QTest::addColumn<ZEVRange>("range");
        QTest::addColumn<qsizetype>("found");
        QTest::newRow("a piece of no length ends the walk") << qsizetype(4) << ZEVRange{0, 0} << qsizetype(0);
        QTest::newRow("negative") << qsizetype(4) << ZEVRange{0, -2} << qsizetype(0);
        QTest::newRow("more than there is") << qsizetype(4) << ZEVRange{0, 9} << qsizetype(2);
        QTest::newRow("near the end of numbers") << Huge << ZEVRange{0, Huge - 1} << qsizetype(4);
    }
    void clientsAreNotTrusted()
    {
        QFETCH(qsizetype, length);
        QFETCH(ZEVRange, range);
        LyingClient client(length, range);
        ZEVTextFinder finder;
        finder.setClient(&client);
        finder.performSearchAgainstExpression(expression(u"a"_s));
        QTEST(finder.foundMatches().size(), "found");
    }

    void whatPeopleTypeEnds_data()
    {
        const QVariant url = QVariant::fromValue(ZEVPatternItem::webAddress());
        const QVariant wild = QVariant::fromValue(ZEVPatternItem::wildCard());
        QTest::addColumn<QVariantList>("pattern");
        QTest::addColumn<qint64>("type");
        QTest::addColumn<QString>("text");
        QTest::newRow("web address, 31 letters")
            << QVariantList{url} << qint64(0) << u"http://x.com/("_s + QString(31, u'a') + u'!';
        QTest::newRow("web address, 37 letters")
            << QVariantList{url} << qint64(0) << u"http://x.com/("_s + QString(37, u'a') + u'!';
        QTest::newRow("nested repetition")
            << QVariantList{u"(a+)+$"_s} << qint64(4) << QString(40, u'a') + u'!';
        QTest::newRow("four wildcards as the contents")
            << QVariantList{wild, wild, wild, wild} << qint64(5) << QString(158, u'a') + u"\n\n"_s;
    }
    void whatPeopleTypeEnds()
    {
        QFETCH(QVariantList, pattern);
        QFETCH(qint64, type);
        QFETCH(QString, text);
        ZEVRegularExpression::setTimeLimit(100ms); // a fast machine may come to an end within the usual limit
        // The pieces around the runaway one are searched as if it were not there.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
        Pieces client({u"www.example.org"_s, text, u"x"_s, u"www.example.org"_s});
        ZEVTextFinder finder;
        finder.setClient(&client);
        const auto searched = tokens(pattern, type);
        finder.performSearchAgainstExpression(searched);
        QVERIFY(finder.limitReached());
        QCOMPARE(client.asked, 4);

        Pieces honest({u"www.example.org"_s, u"x"_s, u"www.example.org"_s});
        ZEVTextFinder honestFinder;
        honestFinder.setClient(&honest);
        honestFinder.performSearchAgainstExpression(searched);
        QVERIFY(!honestFinder.limitReached());
        QCOMPARE(finder.foundMatches().size(), honestFinder.foundMatches().size());
    }

    void aWalkOfRunawaysEnds()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s)); // and once only
        QTest::failOnWarning(QRegularExpression(u"."_s));
        Pieces client(QStringList(500, QString(60, u'a') + u'!'));
        ZEVTextFinder finder;
        finder.setClient(&client);
        finder.performSearchAgainstExpression(expression(u"(a+)+$"_s));
        QVERIFY(finder.limitReached());
        QVERIFY2(client.asked >= 3 && client.asked <= 6, qPrintable(QString::number(client.asked)));
        QCOMPARE(finder.numberOfMatches(), 0);

        finder.performSearchAgainstExpression(expression(u"!"_s)); // the next search begins afresh
        QVERIFY(!finder.limitReached());
        QCOMPARE(finder.numberOfMatches(), 500);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVTextFinder)
#include "tst_ZEVTextFinder.moc"
