// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../FindInterfaceStub.h"
#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelText_p.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVTextEditFinderClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

struct Finder : ZEVTextFinder {
    explicit Finder(const QString &replacement = {})
        : asker(QVariantList{replacement})
        , actor(this)
    {
        addInterface(&asker);
    }
    qsizetype find(const QString &pattern)
    {
        search({{}, ZEVRegularExpression::compile(pattern), &asker});
        return numberOfMatches().value_or(-1);
    }
    FindInterfaceStub asker;
    ZEVTextFinderActor actor;
};

/// The cells' texts, a bar behind each, as a walk through the client's pieces gives them.
QString walk(const ZEVTextFinderClient &client)
{
    QString text;
    ZEVRange piece;
    for (qsizetype at = 0; at < client.stringLength(); at = piece.end()) {
        const QString string = client.stringAtIndex(at, piece);
        if (piece != ZEVRange{at, string.size() + 1})
            return u"wrong range at %1"_s.arg(at);
        text += string + u'|';
    }
    return text;
}

std::unique_ptr<QStandardItemModel> model(const QStringList &rows)
{
    auto model = std::make_unique<QStandardItemModel>();
    for (const QString &row : rows) {
        QList<QStandardItem *> items;
        for (const QString &text : row.split(u' '))
            items.append(new QStandardItem(text));
        model->appendRow(items);
    }
    return model;
}

/// The whole text of \a model, made in the simplest way.
QString texts(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QString all;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            if (const QString text = model.index(row, column, parent).data().toString(); !text.isEmpty())
                all += text + u'|';
        all += texts(model, model.index(row, 0, parent));
    }
    return all;
}

template <typename Editor>
void checkEditor()
{
    Editor editor;
    Finder finder(u"-\n-"_s);
    editor.setPlainText(u"ab\nac\n\u00A0b\n\nba"_s);
    {
        ZEVTextEditFinderClient whole(&editor, &finder, ZEVTextEditFinderClient::Piece::WholeText);
        QCOMPARE(finder.find(u"b\na|\u00A0"_s), 2);
    }
    QCOMPARE(finder.client(), nullptr);
    const ZEVTextEditFinderClient client(&editor, &finder);
    QCOMPARE(walk(client), u"ab|ac|\u00A0b||ba|"_s);
    QCOMPARE(finder.find(u"\\s$"_s), 0);
    QCOMPARE(finder.find(u"^$"_s), 1);
    QCOMPARE(finder.find(u"^a"_s), 2);

    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(3);
    cursor.setPosition(10, QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor); // begins with the second match
    finder.performAction(8);
    QCOMPARE(editor.toPlainText(), u"ab\n-\n-c\n b\n\nba"_s);
    QCOMPARE(client.selectedRanges(), (QList<ZEVRange>{{3, 9}}));
    finder.performAction(4);
    QCOMPARE(editor.toPlainText(), u"-\n-b\n-\n-c\n b\n\nba"_s);
    editor.undo();
    editor.undo();
    QCOMPARE(editor.toPlainText(), u"ab\nac\n b\n\nba"_s);
    editor.setReadOnly(true);
    finder.performAction(4);
    finder.performAction(2);
    QCOMPARE(editor.toPlainText(), u"ab\nac\n b\n\nba"_s);
    QCOMPARE(editor.textCursor().selectedText(), u"a"_s);
    editor.setPlainText({});
    QCOMPARE(finder.find(u"^"_s), -1);
    delete editor.document();
    finder.performAction(2);
}

template <typename Editor>
void checkMarks()
{
    Editor editor;
    Finder finder;
    ZEVTextEditFinderClient client(&editor, &finder);
    editor.resize(200, 100);
    editor.setPlainText(QString(u"aaa\n"_s).repeated(2000));
    editor.setExtraSelections({{editor.textCursor(), {}}}); // the host's own
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    finder.find(u"a"_s);
    const qsizetype marks = editor.extraSelections().size();
    QVERIFY2(marks > 6 && marks < 200, qPrintable(QString::number(marks)));
    editor.verticalScrollBar()->setValue(editor.verticalScrollBar()->maximum());
    QVERIFY(editor.extraSelections().last().cursor.position() > 7000);
    editor.resize(200, 300);
    QTRY_VERIFY(editor.extraSelections().size() > marks);
    finder.find(u"z"_s);
    QCOMPARE(editor.extraSelections().size(), 1);
}

} // namespace

class tst_FinderClients : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editorsAreSearchedAndReplaced()
    {
        checkEditor<QTextEdit>();
        checkEditor<QPlainTextEdit>();
    }

    void matchesInSightAreMarked()
    {
        checkMarks<QTextEdit>();
        checkMarks<QPlainTextEdit>();
    }

    void modelsMayChangeInEveryWay()
    {
        const auto source = model({u"b x "_s, u" c yy"_s, u"a  "_s});
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(source.get());
        Finder finder, other;
        ZEVItemModelFinderClient client(source.get(), nullptr, &finder), proxy(&sorted, nullptr, &other);
        const std::pair<const char *, std::function<void()>> changes[] = {
            {"as it was", [] {}},
            {"data", [&] { source->setData(source->index(1, 0), u"longer"_s); }},
            {"emptied", [&] { source->setData(source->index(0, 0), QString()); }},
            {"data of two rows at once",
             [&] {
                 {
                     const QSignalBlocker blocker(source.get());
                     for (const int row : {1, 2})
                         source->setData(source->index(row, 1), u"long text"_s);
                 }
                 Q_EMIT source->dataChanged(source->index(0, 0), source->index(2, 1));
             }},
            {"rows in", [&] { source->insertRow(1, new QStandardItem(u"in"_s)); }},
            {"rows out", [&] { source->removeRow(0); }},
            {"sorted", [&] { sorted.sort(0, Qt::DescendingOrder); }},
            {"data of a sorted one", [&] { source->setData(source->index(0, 0), u"zz"_s); }},
            {"columns in", [&] { source->insertColumn(0, {new QStandardItem(u"new"_s)}); }},
            {"columns out", [&] { source->removeColumn(1); }},
            {"children", [&] { source->item(0)->appendRow({new QStandardItem(u"child"_s)}); }},
            {"data of a child", [&] { source->item(0)->child(0)->setText(u"grown"_s); }},
            {"grandchildren", [&] { source->item(0)->child(0)->appendRow(new QStandardItem(u"g"_s)); }},
            {"filtered", [&] { sorted.setFilterFixedString(u"n"_s); }},
            {"reset", [&] { source->clear(); }},
        };
        for (const auto &[name, change] : changes) {
            change();
            COMPARE_ROW(name, walk(client), texts(*source));
            COMPARE_ROW(name, walk(proxy), texts(sorted));
        }
    }

    void columnsAreChosenAndCellsFound()
    {
        const auto source = model({u"a bb c"_s, u"d ee f"_s});
        Finder finder;
        ZEVItemModelFinderClient client(source.get(), nullptr, &finder);
        client.setColumns({2, 1});
        QCOMPARE(walk(client), u"c|bb|f|ee|"_s);
        ZEVRange range;
        QCOMPARE(client.cellOfRange({8, 1}, &range), source->index(1, 1));
        QCOMPARE(range, (ZEVRange{1, 1}));
        QVERIFY(!client.cellOfRange({10, 0}).isValid());
        QCOMPARE(ZEVItemModelText(*source).placeOfCell({}), ZEVRange());
        finder.find(u"$"_s);
        QCOMPARE(client.matchesInCell(source->index(0, 1)).ranges, (QList<ZEVRange>{{2, 0}}));
        QVERIFY(client.matchesInCell(source->index(0, 0)).ranges.isEmpty());
        source->appendRow({});
        QVERIFY(!client.matchesInCell(source->index(0, 1)).ranges.isEmpty()); // nothing before it has moved
        source->removeRow(2);
        QVERIFY(client.matchesInCell(source->index(0, 1)).ranges.isEmpty()); // they may lie anywhere now
        finder.find(u"$"_s);
        source->insertRow(1, new QStandardItem(u"g"_s));
        for (int row = 0; row < 3; ++row)
            QVERIFY(client.matchesInCell(source->index(row, 1)).ranges.isEmpty());

        client.stringAtIndex(0, range); // the walk would go on at 2
        source->setData(source->index(0, 2), QString());
        source->setData(source->index(0, 1), u"b"_s);
        QCOMPARE(client.stringAtIndex(2, range), u"f"_s);
    }

    void viewsShowTheMatchAndGiveTheSelection()
    {
        const auto source = model({u"ab b"_s, u"b abb"_s, u"b b"_s});
        QTableView view;
        view.setModel(source.get());
        Finder finder(u"x"_s);
        ZEVItemModelFinderClient client(source.get(), &view, &finder);
        finder.find(u"b"_s);
        view.setCurrentIndex(source->index(1, 1));
        for (const qsizetype current : {0, 1}) {
            finder.performAction(2);
            QCOMPARE(view.currentIndex(), source->index(1, 1));
            QCOMPARE(client.matchesInCell(view.currentIndex()).current, current);
        }
        finder.performAction(6);
        QCOMPARE(view.currentIndex(), source->index(2, 0));
        view.selectionModel()->select(QItemSelection(source->index(0, 1), source->index(1, 1)),
                                      QItemSelectionModel::ClearAndSelect);
        finder.performAction(8);
        QCOMPARE(walk(client), u"ab|x|b|axx|b|b|"_s);
        finder.performAction(9);
        QCOMPARE(view.selectionModel()->selection().size(), 2); // a run in each column
        QCOMPARE(view.selectionModel()->selectedIndexes().size(), 4);
    }

    void cellsAreWrittenAtOnceAndNeverSpoiled()
    {
        const auto source = model({u"aa 1"_s, u"ab 2"_s, u"ac 3"_s, u"a 4"_s});
        source->item(2)->setEditable(false);
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(source.get());
        sorted.sort(0); // and stays so while it is written
        Finder finder(u"zz"_s);
        ZEVItemModelFinderClient client(&sorted, nullptr, &finder);
        QStringList written;
        client.setWriter([&](const auto &changes, const QString &) {
            for (const auto &change : changes)
                written += change.before + u'>' + change.after;
            return false;
        });
        finder.find(u"a"_s);
        finder.performAction(4);
        QCOMPARE(written, (QStringList{u"a>zz"_s, u"aa>zzzz"_s, u"ab>zzb"_s}));
        client.setWriter({});
        finder.performAction(4);
        QCOMPARE(texts(*source), u"zzzz|1|zzb|2|ac|3|zz|4|"_s);

        struct Shown : QSortFilterProxyModel {
            QVariant data(const QModelIndex &index, int role) const override
            {
                const QVariant data = QSortFilterProxyModel::data(index, role);
                return role == Qt::DisplayRole ? QVariant(data.toString() + u" kB"_s) : data;
            }
        } shown;
        shown.setSourceModel(source.get());
        ZEVItemModelFinderClient formatted(&shown, nullptr, &finder);
        QCOMPARE(finder.find(u"kB"_s), 8);
        QVERIFY(finder.actor.preview().replacements.isEmpty());
    }

    void anyoneMayGoFirst()
    {
        Finder finder;
        auto source = model({u"a"_s});
        auto view = std::make_unique<QTableView>();
        view->setModel(source.get());
        new ZEVItemModelFinderClient(source.get(), view.get(), &finder);
        QCOMPARE(finder.find(u"a"_s), 1);
        source.reset();
        for (const qint64 action : {2, 4, 6, 8, 9})
            finder.performAction(action);
        view.reset();
        QCOMPARE(finder.client(), nullptr);
        QPlainTextEdit editor;
        new ZEVTextEditFinderClient(&editor, std::make_unique<Finder>().get());
        editor.setPlainText(u"a"_s);
    }
};

QTEST_MAIN(tst_FinderClients)
#include "tst_FinderClients.moc"
