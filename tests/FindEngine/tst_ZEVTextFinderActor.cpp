// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../FindInterfaceStub.h"
#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureGroup.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Lines, each a piece. A "#" in a line keeps it from being edited.
struct Lines : ZEVTextFinderEditableClient {
    explicit Lines(const QString &string = {})
        : text(string)
    {
    }
    qsizetype stringLength() const override { return text.isEmpty() ? 0 : text.size() + 1; }
    QString stringAtIndex(qsizetype index, ZEVRange &range) const override
    {
        const qsizetype start = index == 0 ? 0 : text.lastIndexOf(u'\n', index - 1) + 1;
        const qsizetype end = text.indexOf(u'\n', start);
        range = {start, (end < 0 ? text.size() : end) - start + 1};
        return text.mid(start, range.length - 1);
    }
    quint64 changeStamp() const override { return qHash(text); }
    QList<ZEVRange> selectedRanges() const override { return selection; }
    void setSelectedRanges(const QList<ZEVRange> &ranges) override { selection = ranges; }
    void scrollSelectionToVisible() override { }
    bool isEditable(const ZEVRange &range) const override
    {
        ZEVRange line;
        return !stringAtIndex(range.location, line).contains(u'#');
    }
    bool replace(const QList<ZEVTextReplacement> &replacements, const QString &) override
    {
        if (refuses)
            return false;
        ++undoSteps;
        for (auto one = replacements.rbegin(); one != replacements.rend(); ++one) {
            if (text.mid(one->range.location, one->range.length) != one->before)
                qFatal("a replacement of what is not there");
            text.replace(one->range.location, one->range.length, one->after);
        }
        return true;
    }

    QString text;
    QList<ZEVRange> selection;
    int undoSteps = 0;
    bool refuses = false;
};

QVariant token(const ZEVPatternItem &item) { return QVariant::fromValue(item); }

ZEVPatternItem placeholder(const QString &keyPath, const ZEVPatternItem::Text &transformer = {})
{
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(keyPath, {}, {}, u"(.+?)"_s);
    item.setMetadataKeyPath(keyPath);
    item.setValueTransformerName(transformer);
    return item;
}

ZEVFindPanelQuery queryFor(const QVariantList &pattern, qint64 type)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setMatchingType(type);
    return query;
}

struct Round {
    Round(const QString &text, const QVariantList &search, const QVariantList &replacement, qint64 type = 4)
        : client(text)
        , request{queryFor(search, type), queryFor(search, type).searchExpression(), &asker}
        , asker(replacement)
        , actor(&finder)
    {
        finder.setClient(&client);
        finder.addInterface(&asker);
        actor.setPlaceholderValue([](const ZEVPatternItem &item, const ZEVRange &range) {
            if (item.valueTransformerName())
                return ZEVOrvCaptureMatch{item, 2'000'000};
            return ZEVOrvCaptureMatch{item, u"%1@%2"_s.arg(*item.title()).arg(range.location)};
        });
        finder.search(request);
    }
    QString after(const QList<qint64> &actions)
    {
        for (const qint64 action : actions)
            finder.performAction(action);
        return client.text;
    }

    Lines client;
    ZEVFindRequest request;
    FindInterfaceStub asker;
    ZEVTextFinder finder;
    ZEVTextFinderActor actor;
};

} // namespace

class tst_ZEVTextFinderActor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void groupsAreCountedInWhateverSurroundsThem()
    {
        const QVariant digits = token(ZEVPatternItem::digits()), url = token(ZEVPatternItem::webAddress());
        const ZEVPatternItem bare = ZEVPatternItem::itemWithTitle(u"bare"_s, {}, {}, u"x"_s);
        const std::tuple<QVariantList, qint64, QList<qint64>> rows[] = {
            {{url, token(ZEVPatternItem::email()), digits}, 0, {1, 7, 8}},
            {{u"(a)\\((?:b)[(](?<n>c)(?=d(e)"_s, digits, u")("_s, digits, u")"_s}, 4, {4, 6}},
            {{u"(a)("_s, digits}, 0, {1}},
            {{u"["_s, digits, u"]"_s, digits}, 4, {1}},
            {{u"\\Q("_s, digits, u"\\E("_s, digits, u")"_s}, 4, {2}},
            {{token(bare), digits, u"{2}|"_s, 17, digits}, 4, {1, 2}},
            {{u"("_s, digits}, 4, {}},
        };
        for (const auto &[pattern, type, indexes] : rows) {
            QList<qint64> actual;
            for (const ZEVOrvCaptureGroup &group : queryFor(pattern, type).captureGroups())
                actual.append(group.index);
            COMPARE_ROW(pattern, actual, indexes);
        }
    }

    void replacementsAreMadeOfTokens()
    {
        ZEVPatternItem hosts = ZEVPatternItem::itemWithTitle(u"t"_s, {}, {}, u"x"_s);
        hosts.setRegexTemplateString(u"<$1$20$10\\$1$>"_s);
        ZEVPatternItem plainTab = ZEVPatternItem::tab();
        plainTab.setRegexTemplateString(std::nullopt); // as an archive gives it back
        const QVariant digits = token(ZEVPatternItem::digits()), word = token(ZEVPatternItem::anyWord());
        const QVariant artist = token(placeholder(u"artist"_s));
        const QVariant size = token(placeholder(u"size"_s, u"ByteSizeTransformer"_s));
        const QVariantList tenWords{word, word, word, word, word, word, word, word, word, digits};
        const std::tuple<QString, QVariantList, QVariantList, qint64, QString> rows[] = {
            {u"a.b"_s, {u"."_s}, {u"$0\\1$1"_s}, 0, u"a$0\\1$1b"_s},
            {u"a1"_s, {u"(a)1"_s}, {u"$1\\"_s}, 4, u"$1\\"_s},
            {u"ab"_s, {u"a"_s}, {token(ZEVPatternItem::tab()), token(plainTab), 5}, 0, u"\t\tb"_s},
            {u"1-2"_s, {digits, u"-"_s, digits}, {digits, u":"_s, digits, digits}, 0, u"1:22"_s},
            {u"www.a.org 7"_s, {token(ZEVPatternItem::webAddress()), u" "_s, digits}, {digits}, 0, u"7"_s},
            {u"abcdefghi7"_s, tenWords, {digits, u"0"_s, token(hosts)}, 0, u"70<ab07$1$>"_s},
            {u"a - b"_s, {artist, u" - "_s, word}, {word, u" by "_s, artist}, 5, u"b by a"_s},
            {u"ab"_s, {u"b"_s}, {size}, 0, u"a2.0 MB"_s},
            {u"xa"_s, {u"a"_s}, {artist, digits}, 0, u"xartist@1"_s},
            {u"ac"_s, {u"a(b)?(?:"_s, digits, u")?c"_s}, {u"<"_s, digits, u">"_s}, 4, u"<>"_s},
        };
        for (const auto &[text, search, replacement, type, expected] : rows)
            COMPARE_ROW(text, Round(text, search, replacement, type).after({4}), expected);
    }

    void actionsMoveAndReplace()
    {
        const std::tuple<const char *, QString, QString, QString, QList<qint64>, QString, ZEVRange> rows[] = {
            {"next goes around", u"a-a"_s, u"a"_s, u""_s, {2, 2, 2}, u"a-a"_s, {0, 1}},
            {"previous goes around", u"a-a"_s, u"a"_s, u""_s, {3}, u"a-a"_s, {2, 1}},
            {"matches of no length", u"ab"_s, u"$|^"_s, u""_s, {2, 2, 3, 3}, u"ab"_s, {2, 0}},
            {"first it is selected", u"a-a"_s, u"a"_s, u"b"_s, {5}, u"a-a"_s, {0, 1}},
            {"then it is replaced", u"a-a"_s, u"a"_s, u"aa"_s, {5, 5}, u"aa-a"_s, {2, 0}},
            {"never within what was put in", u"a-a"_s, u"a"_s, u"aa"_s, {6, 6}, u"aa-a"_s, {3, 1}},
            {"nor after going around", u"a"_s, u"a"_s, u"aa"_s, {6, 6}, u"aa"_s, {2, 0}},
            {"before each", u"bb"_s, u"(?=b)"_s, u"x"_s, {6, 6, 6}, u"xbxb"_s, {1, 0}},
            {"around to the first", u"a-a"_s, u"a"_s, u"b"_s, {3, 6}, u"a-b"_s, {0, 1}},
            {"all, at both ends", u"aba\na"_s, u"a"_s, u""_s, {4}, u"b\n"_s, {}},
            {"all ends of lines", u"a\n\nb"_s, u"$"_s, u";"_s, {4}, u"a;\n;\nb;"_s, {}},
            {"an anchor holds but once", u"aaa"_s, u"^a"_s, u""_s, {4}, u"aa"_s, {}},
            {"what looks around", u"xaya"_s, u"(?<=x)a"_s, u"b"_s, {6, 6}, u"xbya"_s, {2, 0}},
            {"not what is locked", u"a#\na"_s, u"a"_s, u"b"_s, {4}, u"a#\nb"_s, {}},
            {"on from what is locked", u"a#\na"_s, u"a"_s, u"b"_s, {6, 6, 6}, u"a#\nb"_s, {0, 1}},
            {"nothing found", u"a"_s, u"z"_s, u"b"_s, {2, 3, 4, 5, 6, 8, 10}, u"a"_s, {}},
        };
        for (const auto &[name, text, search, replacement, actions, expected, selection] : rows) {
            Round round(text, {search}, {replacement});
            COMPARE_ROW(name, round.after(actions), expected);
            COMPARE_ROW(name, round.client.selection.value(0), selection);
        }
        Round once(u"a-a"_s, {u"a"_s}, {});
        once.asker.wraps = false; // as its user has chosen
        once.after({2, 2, 2});
        QCOMPARE(once.client.selection, (QList<ZEVRange>{{2, 1}}));
    }

    void selectionsHoldWholeMatches()
    {
        Round round(u"aa-aa-aa-aa"_s, {u"aa"_s}, {u"b"_s});
        round.client.selection = {{1, 4}, {5, 0}, {6, 5}};
        round.after({10});
        QCOMPARE(round.client.selection, (QList<ZEVRange>{{3, 2}, {6, 2}, {9, 2}}));
        round.client.selection = {{1, 4}, {6, 2}};
        QCOMPARE(round.after({8}), u"aa-b-b-aa"_s);
        QCOMPARE(round.client.undoSteps, 1);
        round.client.selection = {{0, 0}};
        QCOMPARE(round.after({8, 9}), u"aa-b-b-aa"_s);
        QCOMPARE(round.client.selection, (QList<ZEVRange>{{0, 2}, {7, 2}}));
    }

    void previewsAreAppliedAtOnceOrNotAtAll()
    {
        Round round(u"a1 a2\na3"_s, {u"a"_s, token(ZEVPatternItem::digits())},
                    {token(ZEVPatternItem::digits()), u"b"_s});
        ZEVReplacementPreview preview = round.actor.preview();
        QCOMPARE(preview.replacements,
                 (QList<ZEVTextReplacement>{
                     {{0, 2}, u"a1"_s, u"1b"_s}, {{3, 2}, u"a2"_s, u"2b"_s}, {{6, 2}, u"a3"_s, u"3b"_s}}));
        preview.replacements.removeAt(1);
        round.client.refuses = true;
        QVERIFY(!round.actor.apply(preview));
        round.client.refuses = false;
        QVERIFY(round.actor.apply(preview));
        QCOMPARE(round.client.text, u"1b a2\n3b"_s);
        QCOMPARE(round.client.undoSteps, 1);
        QCOMPARE(round.finder.numberOfMatches(), 1);
        QVERIFY(!round.actor.apply(preview));
        QVERIFY(!round.actor.apply(round.actor.previewInSelection()));
    }

    void changedTextsAreSearchedAgain()
    {
        for (const qint64 action : {4, 5, 6}) {
            Round round(u"a1-a2"_s, {u"a"_s, token(ZEVPatternItem::digits())},
                        {token(ZEVPatternItem::digits())});
            round.after({2});
            round.client.text = u"xa1-a2"_s;
            QCOMPARE(round.after({action}), action == 4 ? u"x1-2"_s : u"xa1-a2"_s);
            QCOMPARE(round.after({action}), action == 4 ? u"x1-2"_s : u"x1-a2"_s);
        }
        Round underWay(QString(u"a\n"_s).repeated(99), {u"a"_s}, {u"b"_s});
        underWay.finder.setSliceDuration(1ms);
        connect(&underWay.finder, &ZEVTextFinder::numberOfMatchesChanged, this, [&] {
            for (QDeadlineTimer slow(3); underWay.finder.numberOfMatches() == 1 && !slow.hasExpired();) { }
        });
        underWay.finder.search(underWay.request);
        underWay.client.text.prepend(u"xx\n"_s);
        QVERIFY(underWay.finder.isSearching());
        QCOMPARE(underWay.after({4}), u"xx\n"_s + QString(u"b\n"_s).repeated(99));

        Round later(u"a"_s, {u"a"_s}, {});
        later.client.text = u"aa"_s;
        later.actor.searchAgainSoon();
        QTRY_COMPARE(later.finder.numberOfMatches(), 2);
    }

    void whoAsksGetsTheCountAndGivesTheReplacement()
    {
        Round round(u"a1 b2 b3"_s, {u"a"_s, token(ZEVPatternItem::digits())}, {u"x"_s});
        auto panel =
            std::make_unique<FindInterfaceStub>(QVariantList{token(ZEVPatternItem::digits()), u"y"_s});
        round.finder.addInterface(panel.get());
        QCOMPARE(round.asker.count, 1);
        QCOMPARE(panel->count, std::nullopt);
        const auto query = queryFor({u"b"_s, token(ZEVPatternItem::digits())}, 0);
        round.finder.search({query, query.searchExpression(), panel.get()});
        QCOMPARE(panel->count, 2);
        QCOMPARE(round.asker.count, std::nullopt); // nothing of its own was counted
        QCOMPARE(round.after({2, 5}), u"a1 b2 b3"_s.replace(u"b2"_s, u"2y"_s));
        round.finder.search(round.finder.lastRequest());
        QCOMPARE(round.finder.lastRequest().query, query);
        panel.reset();
        QCOMPARE(round.finder.lastRequest().asker, nullptr);
        round.finder.performSearchAgainstExpression(ZEVRegularExpression::compile(u"\\d"_s));
        QCOMPARE(round.asker.count, 3); // nobody's, so everybody's
        QCOMPARE(round.after({2}), u"a1 2y b3"_s);
        round.finder.setFoundMatches({{0, 2}});
        QCOMPARE(round.asker.count, 1);
        QCOMPARE(round.after({9}), u"a1 2y b3"_s);
        QCOMPARE(round.client.selection, (QList<ZEVRange>{{0, 2}}));
    }

    /// A text on which the engine spends its whole limit, which holds up nobody.
    void noExpressionHoldsUpTheUser()
    {
        const QString runaway = QString(60, u'a') + u'!';
        Round round(QStringList{u"a!"_s, runaway, u"a!"_s}.join(u'\n'), {u"z"_s}, {u"-"_s});
        round.finder.setSliceDuration(5ms);
        const auto query = queryFor({u"(a+)+$|!"_s}, 4);
        const ZEVFindRequest request{query, query.searchExpression(), &round.asker};
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Matching was cut short"_s));
        round.asker.searchings.clear();
        QElapsedTimer timer;
        timer.start();
        round.finder.search(request);
        const qint64 held = timer.elapsed();
        QVERIFY2(held < 150, qPrintable(u"held for %1 ms"_s.arg(held))); // the limit is 250
        QVERIFY(round.finder.isSearching());
        QCOMPARE(round.asker.searchings, QList<bool>{true});
        round.after({2}); // moves to what there is
        QCOMPARE(round.client.selection.value(0), (ZEVRange{1, 1}));
        QTRY_VERIFY(!round.finder.isSearching());
        QVERIFY(round.finder.limitReached());
        QCOMPARE(round.asker.searchings, (QList<bool>{true, false}));
        QCOMPARE(round.finder.foundMatches().first(), (ZEVRange{1, 1}));
        QCOMPARE(round.finder.foundMatches().last(), (ZEVRange{round.client.text.size() - 1, 1}));

        round.finder.search(request);
        QVERIFY(round.finder.stopSearch());
        QVERIFY(!round.finder.stopSearch());
        QVERIFY(!round.finder.isSearching());
        QCOMPARE(round.finder.numberOfMatches(), 1);
        round.finder.search(request);
        round.client.text.prepend(u"!\n"_s); // what has been found lies elsewhere now
        QTRY_VERIFY(!round.finder.isSearching());
        QCOMPARE(round.finder.foundMatches().first(), (ZEVRange{0, 1}));
        round.finder.search(request); // and it may end in the middle of it
    }

    void anyoneMayGoAtAnyMoment()
    {
        auto round = std::make_unique<Round>(u"a-a"_s, QVariantList{u"a"_s}, QVariantList{u"b"_s});
        QPointer actor = new ZEVTextFinderActor(&round->finder);
        connect(&round->finder, &ZEVTextFinder::searchPerformed, actor, [&] { delete actor; });
        actor->performAction(4);
        QVERIFY(!actor);
        ZEVTextFinderActor survivor(&round->finder);
        round->finder.setClient(nullptr);
        survivor.performAction(4);
        round.reset();
        survivor.performAction(2);
        QVERIFY(survivor.preview().replacements.isEmpty());
        survivor.searchAgainSoon();
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(tst_ZEVTextFinderActor)
#include "tst_ZEVTextFinderActor.moc"
