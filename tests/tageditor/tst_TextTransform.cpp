// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TextDifference.h>
#include <tageditor/text/TransformPreviewModel.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const TextTransform &transform(const QString &name)
{
    for (const TextTransform &transform : TextTransform::all()) {
        if (transform.plainName() == name)
            return transform;
    }
    qFatal("There is no such transform.");
}

QList<TextChange> cells(const QStringList &texts)
{
    QList<TextChange> cells;
    for (const QString &text : texts)
        cells.append({int(cells.size()), TrackField::Title, text});
    return cells;
}

QString ranges(const QList<ZEVRange> &ranges)
{
    QStringList texts;
    for (const ZEVRange &range : ranges)
        texts.append(u"%1+%2"_s.arg(range.location).arg(range.length));
    return texts.join(u' ');
}

} // namespace

class tst_TextTransform : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachNameDoesWhatItSays_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("Capitalize Words") << u"dj at the pub"_s << u"DJ At The Pub"_s;
        QTest::newRow("Title Case") << u"songs of the sea"_s << u"Songs of the Sea"_s;
        QTest::newRow("Sentence case") << u"Songs Of The Sea"_s << u"Songs of the sea"_s;
        QTest::newRow("camelCase") << u"songs of the sea"_s << u"songsOfTheSea"_s;
        QTest::newRow("Underscores to Spaces") << u"a_b_"_s << u"a b "_s;
        QTest::newRow("Spaces to Underscores") << u"a b\tc"_s << u"a_b_c"_s;
        QTest::newRow("Trim Spaces") << u" \t a \U0001F4FC \u3000"_s << u"a \U0001F4FC"_s; // the whole emoji
        QTest::newRow("Strip Punctuation")
            << u"«Who’s» (there)?… \U0001F4FC + 1$"_s << u"Whos there \U0001F4FC + 1$"_s;
    }
    void eachNameDoesWhatItSays()
    {
        QFETCH(QString, before);
        const TextTransform &tried = transform(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(tried.apply(before, {}), "after");
        QCOMPARE(tried.apply({}, {}), QString());
    }

    void whatDiffersIsMarked_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("beforeRanges");
        QTest::addColumn<QString>("afterRanges");
        const auto row = [](const QString &before, const QString &after, const char *beforeRanges,
                            const char *afterRanges) {
            QTest::addRow("%s", qPrintable(before))
                << before << after << QString::fromLatin1(beforeRanges) << QString::fromLatin1(afterRanges);
        };
        row(u"the sea"_s, u"the sea"_s, "", "");
        row(u"dj at sea"_s, u"DJ At sea"_s, "0+2 3+1", "0+2 3+1");
        row(u"  the sea  "_s, u"the sea"_s, "0+2 9+2", "");
        row(u"the old sea"_s, u"theOldSea"_s, "3+2 7+2", "3+1 6+1");
        row(u"(a), b."_s, u"a b"_s, "0+1 2+2 6+1", "");
        row(u"izmir"_s, u"İzmir"_s, "0+1", "0+1");
        row(u"straße x"_s, u"STRASSE X"_s, "0+8", "0+9");
        row(u"a"_s, QString(), "0+1", "");
    }
    void whatDiffersIsMarked()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        const TextDifference difference = TextDifference::between(before, after);
        QTEST(ranges(difference.before), "beforeRanges");
        QTEST(ranges(difference.after), "afterRanges");
    }

    void onlyWhatChangesIsARow()
    {
        TransformPreviewModel model(cells({u"a b"_s, u"A"_s, {}, u"c"_s}));
        model.setTransform(transform(u"Capitalize Words"_s), {});
        model.finish();
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.index(1, TransformPreviewModel::Before).data().toString(), u"c"_s);
        QCOMPARE(model.index(1, TransformPreviewModel::After).data().toString(), u"C"_s);
        const QVariant marked = model.index(0, 1).data(ZEVHighlightDelegate::RangesRole);
        QCOMPARE(ranges(marked.value<QList<ZEVRange>>()), u"0+1 2+1"_s);
        QCOMPARE(model.changes().at(1).trackId, 3);
        QCOMPARE(model.changes().at(1).text, u"C"_s);
    }

    void aBurstOfChangesIsWorkedOffOnceAndInSlices()
    {
        QStringList texts;
        for (int n = 0; n < 100'000; ++n)
            texts.append(u"some words of song %1"_s.arg(n));
        TransformPreviewModel model(cells(texts));
        const QSignalSpy reset(&model, &TransformPreviewModel::modelReset);
        const QSignalSpy inserted(&model, &TransformPreviewModel::rowsInserted);
        model.setTransform(transform(u"camelCase"_s), {});
        model.setTransform(transform(u"Trim Spaces"_s), {});
        model.setTransform(transform(u"Title Case"_s), {});
        QCOMPARE(model.rowCount(), 0); // not yet
        QTRY_VERIFY_WITH_TIMEOUT(model.isFinished(), 60'000);
        QCOMPARE(model.rowCount(), 100'000);
        QCOMPARE(reset.size(), 1);
        QVERIFY(inserted.size() > 2);
        QCOMPARE(model.changes().last().text, u"Some Words of Song 99999"_s);

        model.setTransform(transform(u"Trim Spaces"_s), {});
        QCOMPARE(model.rowCount(), 100'000); // what was there stays in sight meanwhile
        model.finish();
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.isFinished());
    }
};

QTEST_GUILESS_MAIN(tst_TextTransform)
#include "tst_TextTransform.moc"
