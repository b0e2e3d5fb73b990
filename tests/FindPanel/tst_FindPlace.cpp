// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

/// A window with a view in its middle that can be searched, and nothing else set up.
template <typename View>
struct Window : QMainWindow {
    Window()
    {
        setCentralWidget(&view);
        place = new ZEVFindPlace(&view);
        resize(800, 500);
        show();
        activateWindow();
        view.setFocus();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("No active window");
    }

    /// To whatever has the focus, as a keyboard would.
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void pressButton(const QString &name)
    {
        auto *button = place->bar().view()->template findChild<QAbstractButton *>(name);
        button->setFocus();
        press(Qt::Key_Space);
    }
    std::optional<qsizetype> count() const { return place->bar().numberOfMatches(); }
    qsizetype found() { return place->finder().foundMatches().size(); }

    View &view = *new View;
    ZEVFindPlace *place = nullptr;
};

template <typename Editor>
void checkEditor()
{
    Window<Editor> window;
    QCOMPARE(window.centralWidget(), window.place);
    Editor &editor = window.view;
    editor.setPlainText(u"one two\none\nthree one"_s);
    const auto selected = [&] { return editor.textCursor().selectionStart(); };
    editor.moveCursor(QTextCursor::Start);
    window.press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(window.place->isFindBarVisible());
    QVERIFY(window.place->bar().hasFocus());
    window.type(u"one"_s);
    QCOMPARE(window.count(), 3);
    window.press(Qt::Key_F3);
    window.press(Qt::Key_F3);
    QCOMPARE(selected(), 8);
    editor.setFocus();
    window.press(Qt::Key_F3);
    QCOMPARE(selected(), 18);
    window.press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(selected(), 8);
    window.press(Qt::Key_H, Qt::ControlModifier); // the bar is up already, so the replacement is typed
    window.type(u"1"_s);
    window.pressButton(u"replaceButton"_s);
    QCOMPARE(editor.toPlainText(), u"one two\n1\nthree one"_s);
    window.pressButton(u"replaceAllButton"_s);
    QCOMPARE(editor.toPlainText(), u"1 two\n1\nthree 1"_s);
    window.press(Qt::Key_Escape);
    QVERIFY(!window.place->isFindBarVisible());
    QVERIFY(editor.hasFocus());

    QVERIFY(window.place->hasFocusWithin());
    QLineEdit beside(&window);
    beside.show();
    beside.setFocus();
    QVERIFY(!window.place->hasFocusWithin());
    editor.setFocus();

    editor.setPlainText(u"two two"_s); // unseen, so nobody looks after it
    window.press(Qt::Key_F, Qt::ControlModifier);
    window.type(u"two"_s); // in place of what is selected in the field
    QCOMPARE(window.place->bar().findTokenField()->stringValue(), u"two"_s);
    QTRY_COMPARE(window.count(), 2);
    window.place->bar().setWrapAround(false);
    editor.moveCursor(QTextCursor::Start);
    for (const int expected : {0, 4, 4}) {
        window.press(Qt::Key_Return);
        QCOMPARE(selected(), expected);
    }
    editor.setPlainText(u"a two"_s);
    window.press(Qt::Key_Return); // searched again first
    QCOMPARE(selected(), 2);
    QVERIFY(!editor.extraSelections().isEmpty());
    window.press(Qt::Key_Escape);
    QVERIFY(editor.extraSelections().isEmpty());
    editor.setPlainText(u"word two word"_s);
    editor.find(u"word"_s);
    window.press(Qt::Key_E, Qt::ControlModifier);
    window.press(Qt::Key_F3);
    QCOMPARE(selected(), 9);
}

/// A model that is sorted, filtered and full, below a view.
template <typename View>
void checkView()
{
    QStandardItemModel source;
    for (const auto &text : {u"c ape"_s, u"b ape"_s, u"a ape ape"_s, u"hidden ape"_s, u"d"_s})
        source.appendRow(new QStandardItem(text));
    QSortFilterProxyModel filtered, sorted;
    filtered.setSourceModel(&source);
    filtered.setFilterRegularExpression(u"^(?!hidden)"_s);
    sorted.setSourceModel(&filtered);
    sorted.sort(0);
    Window<View> window;
    window.view.setModel(&sorted); // later than the place was made
    window.view.setEditTriggers(QAbstractItemView::NoEditTriggers); // keys are for finding
    window.press(Qt::Key_F, Qt::ControlModifier);
    window.type(u"ape"_s);
    QTRY_COMPARE(window.count(), 4);
    QVERIFY(qobject_cast<ZEVMatchHighlightDelegate *>(window.view.itemDelegate()));
    const auto current = [&] { return window.view.currentIndex().data().toString(); };
    QStringList walked;
    for (int step = 0; step < 5; ++step) {
        window.press(Qt::Key_F3);
        walked += current();
    }
    QCOMPARE(walked, (QStringList{u"a ape ape"_s, u"a ape ape"_s, u"b ape"_s, u"c ape"_s, u"a ape ape"_s}));
    window.press(Qt::Key_H, Qt::ControlModifier);
    window.type(u"bee"_s);
    window.pressButton(u"replaceAllButton"_s);
    QCOMPARE(source.item(2)->text(), u"a bee bee"_s);
    QCOMPARE(source.item(3)->text(), u"hidden ape"_s);
    source.appendRow(new QStandardItem(u"e ape"_s));
    QTRY_COMPARE(window.count(), 1);
    window.press(Qt::Key_Escape);
    window.view.setModel(nullptr);
    window.press(Qt::Key_F3);
}

} // namespace

class tst_FindPlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path())); }
    void init() { QFile::remove(m_folder.filePath(u"zevglobalutils/find-pasteboard"_s)); }

    void editors()
    {
        QTest::failOnWarning(QRegularExpression(u"^(QMeta|QObject|QAction|QLayout|QWidget)"_s));
        checkEditor<QTextEdit>();
        checkEditor<QPlainTextEdit>();
    }

    void itemViews()
    {
        checkView<QListView>();
        checkView<QTreeView>();
        checkView<QTableView>();
    }

    /// The batches of a search that is under way hold a text that is not there any more.
    void modelsChangeWhileTheyAreSearched()
    {
        const QString slow = QString(15, u'a') + u"!"_s; // a millisecond or more each
        const std::pair<const char *, std::function<void(QStandardItemModel &)>> changes[] = {
            {"grow", [&](auto &model) { model.appendRow(new QStandardItem(u"aQ"_s)); }},
            {"shrink", [](auto &model) { model.removeRows(0, 100); }},
            {"move", [](auto &model) { model.sort(0, Qt::DescendingOrder); }},
            {"reset", [](auto &model) { model.clear(); }},
        };
        for (const auto &[name, change] : changes) {
            QStandardItemModel model;
            for (int row = 0; row < 60; ++row)
                model.appendRow(new QStandardItem(slow));
            model.appendRow(new QStandardItem(u"aQ"_s));
            Window<QListView> window;
            window.view.setModel(&model);
            window.place->finder().setSliceDuration(std::chrono::milliseconds(2));
            window.place->bar().setMatchingType(ZEVFindPanelQuery::RegularExpression);
            window.press(Qt::Key_F, Qt::ControlModifier);
            window.place->bar().setSearchPattern(QVariantList{u"(a+)+Q"_s});
            QVERIFY2(window.place->finder().isSearching(), name);
            change(model);
            QTRY_VERIFY2_WITH_TIMEOUT(!window.place->finder().isSearching(), name, 20000);
            QTRY_VERIFY2(window.place->finder().isTextUnchanged(), name);
            const auto expected = model.findItems(u"aQ"_s).size();
            QTRY_COMPARE(window.found(), expected);
        }
    }

    void placesAreTakenWhereverTheViewIs()
    {
        QWidget window;
        auto *grid = new QGridLayout(&window);
        auto *splitter = new QSplitter;
        auto *dock = new QDockWidget;
        auto *free = new QWidget;
        QPlainTextEdit *views[4];
        for (QPlainTextEdit *&view : views)
            view = new QPlainTextEdit;
        grid->addWidget(new QLabel(u"1"_s), 0, 0);
        grid->addWidget(views[0], 0, 1);
        grid->addWidget(splitter, 1, 0);
        grid->addWidget(dock, 1, 1);
        grid->addWidget(free, 2, 0);
        splitter->addWidget(views[1]);
        splitter->addWidget(new QLabel(u"2"_s));
        dock->setWidget(views[2]);
        views[3]->setParent(free);
        views[3]->setGeometry(5, 6, 70, 80);
        window.show();
        ZEVFindPlace *places[4];
        for (int n = 0; n < 4; ++n)
            places[n] = new ZEVFindPlace(views[n]);
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), places[0]);
        QCOMPARE(splitter->indexOf(places[1]), 0);
        QCOMPARE(dock->widget(), places[2]);
        QCOMPARE(places[3]->geometry(), QRect(5, 6, 70, 80));
        for (const QPlainTextEdit *view : views)
            QVERIFY(view->isVisible());
        delete views[0]; // before its place
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_FindPlace)
#include "tst_FindPlace.moc"
