// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/text/TextCommand.h>
#include <tageditor/tracks/TableSelection.h>

#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using namespace Qt::StringLiterals;

namespace {

/// A table of three tracks, the last of which could not be read.
struct Table {
    Table()
    {
        Track damaged = Samples::track({u"c.ogg"_s});
        damaged.error = u"Damaged"_s;
        model.append({Samples::track({u"b.ogg"_s, u"zwei"_s, u"duo"_s, {}, u"1998"_s, u"2"_s}),
                      Samples::track({u"a.ogg"_s, u"eins"_s, u"solo"_s}), damaged});
    }

    QStringList titles() const
    {
        QStringList titles;
        for (int row = 0; row < model.rowCount(); ++row)
            titles.append(model.track(row).text(TrackField::Title));
        return titles;
    }

    void change(const QList<TextChange> &changes) { stack.push(new TextCommand(u"Name"_s, &model, changes)); }
    int id(int row) const { return model.track(row).id; }

    TrackTableModel model;
    QUndoStack stack;
};

} // namespace

class tst_TextCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aStepFindsItsTracksWhereverTheyAreSortedTo()
    {
        Table table;
        table.change(
            {{table.id(0), TrackField::Title, u"ZWEI"_s}, {table.id(1), TrackField::Title, u"EINS"_s}});
        QCOMPARE(table.titles(), (QStringList{u"ZWEI"_s, u"EINS"_s, {}}));
        table.model.sort(int(TrackField::FileName), Qt::AscendingOrder);
        QCOMPARE(table.titles(), (QStringList{u"EINS"_s, u"ZWEI"_s, {}}));
        table.stack.undo();
        QCOMPARE(table.titles(), (QStringList{u"eins"_s, u"zwei"_s, {}}));
        table.model.sort(int(TrackField::FileName), Qt::DescendingOrder);
        table.stack.redo();
        QCOMPARE(table.titles(), (QStringList{{}, u"ZWEI"_s, u"EINS"_s}));
    }

    void onlyWhatDiffersFromTheFileIsMarked()
    {
        Table table;
        const auto isBold = [&table](int row) {
            return table.model.index(row, int(TrackField::Title)).data(Qt::FontRole).value<QFont>().bold();
        };
        table.change({{table.id(0), TrackField::Title, u"drei"_s}});
        QVERIFY(isBold(0));
        QVERIFY(!isBold(1));
        table.model.sort(int(TrackField::FileName), Qt::AscendingOrder);
        QVERIFY(!isBold(0));
        QVERIFY(isBold(1));
        table.change({{table.id(1), TrackField::Title, u"zwei"_s}}); // by another way than undoing
        QVERIFY(!isBold(1));
        QVERIFY(!table.model.hasChanges());
        table.stack.undo();
        QVERIFY(isBold(1));
        QVERIFY(table.model.hasChanges());
        table.model.clear();
        QVERIFY(!table.model.hasChanges());
    }

    void tracksOfAnotherFolderAreNotTakenForThese()
    {
        Table table;
        const int old = table.id(1);
        table.model.clear();
        table.model.append({Samples::track({u"x.ogg"_s, u"x"_s}), Samples::track({u"y.ogg"_s, u"y"_s})});
        QVERIFY(table.model.setTexts({{old, TrackField::Title, u"EINS"_s}}).isEmpty());
        QCOMPARE(table.titles(), (QStringList{u"x"_s, u"y"_s}));
        QVERIFY(!table.model.hasChanges());
    }

    void viewsAreToldOnceOfAllRows()
    {
        Table table;
        const QSignalSpy changed(&table.model, &TrackTableModel::dataChanged);
        table.change({{table.id(1), TrackField::Title, u"x"_s}, {table.id(0), TrackField::Artist, u"y"_s}});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 0);
        QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 1);
    }

    void ofTheSelectionTheTextsThatMayBeChangedAreTaken()
    {
        Table table;
        QItemSelectionModel selection(&table.model);
        QVERIFY(!TableSelection::hasEditableCell(selection, table.model));
        const auto select = [&](int row, TrackField field) {
            selection.select(table.model.index(row, int(field)), QItemSelectionModel::Select);
        };
        select(0, TrackField::FileName);
        select(2, TrackField::Title); // where the reason stands
        QVERIFY(!TableSelection::hasEditableCell(selection, table.model));
        QCOMPARE(TableSelection::editableCells(selection, table.model).size(), 0);
        QCOMPARE(TableSelection::rows(selection), (QList<int>{0, 2}));

        selection.select({table.model.index(0, 0), table.model.index(2, TrackFieldCount - 1)},
                         QItemSelectionModel::Select); // over what is selected already
        QVERIFY(TableSelection::hasEditableCell(selection, table.model));
        const TableSelection::Cells cells = TableSelection::editableCells(selection, table.model);
        QCOMPARE(cells.size(), 2 * (TrackFieldCount - 1));
        QCOMPARE(cells.at(1).trackId, table.id(0));
        QCOMPARE(cells.at(1).field, TrackField::Artist);
        QCOMPARE(cells.at(1).text, u"duo"_s);
        QCOMPARE(cells.last().field, TrackField::DiscTotal);
        QCOMPARE(TableSelection::rows(selection), (QList<int>{0, 1, 2}));
    }

    void whatAFieldCannotTakeIsLeftOut_data()
    {
        QTest::addColumn<TrackField>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("taken");
        const auto row = [](const char *name, TrackField field, const QString &text,
                            const QStringList &taken) { QTest::newRow(name) << field << text << taken; };
        row("a number", TrackField::Year, u"2001"_s, {u"2001"_s});
        row("without the spaces around it", TrackField::Number, u" 07 "_s, {u"07"_s});
        row("no plain number", TrackField::Number, u"A1"_s, {u"A1"_s});
        row("a number and its total", TrackField::Disc, u"1/2"_s, {u"1"_s, u"2"_s});
        row("a date", TrackField::Year, u"2003-05-17"_s, {u"2003-05-17"_s});
        row("a name", TrackField::FileName, u"new"_s, {});
        row("no difference", TrackField::Artist, u"duo"_s, {});
        row("a text", TrackField::Comment, u" 07 "_s, {u" 07 "_s});
    }
    void whatAFieldCannotTakeIsLeftOut()
    {
        QFETCH(TrackField, field);
        QFETCH(QString, text);
        const Table table;
        QStringList taken;
        for (const TextChange &change : table.model.possibleChanges({{table.id(0), field, text}}))
            taken.append(change.text);
        QTEST(taken, "taken");
    }
};

QTEST_GUILESS_MAIN(tst_TextCommand)
#include "tst_TextCommand.moc"
