// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/window/QuickOpen.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <QListView>

using namespace Qt::StringLiterals;

namespace {

struct Opened : Shown {
    bool openBy(QWidget *focused)
    {
        if (!visible || !open(Samples::folder()))
            return false;
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_K, Qt::ControlModifier);
        return quick->isVisible() && field->hasFocus();
    }

    QString current() const { return list->currentIndex().data().toString(); }
    int count() const { return list->model()->rowCount(); }
    QString marked(int row) const
    {
        const QModelIndex index = list->model()->index(row, 0);
        QString marked;
        for (const ZEVRange &range : index.data(ZEVHighlightDelegate::RangesRole).value<QList<ZEVRange>>())
            marked += index.data().toString().sliced(range.location, range.length);
        return marked;
    }

    QuickOpen *quick = window.findChild<QuickOpen *>();
    QLineEdit *field = quick->findChild<QLineEdit *>();
    QListView *list = quick->findChild<QListView *>();
    QLabel *label = quick->findChild<QLabel *>();
};

} // namespace

class tst_QuickOpen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useStoreIn(m_store); }

    void anEmptyFieldListsAllInTheOrderOfTheTable()
    {
        Opened opened;
        QVERIFY(opened.visible);
        opened.window.table().sortByColumn(int(TrackField::Title), Qt::DescendingOrder);
        QVERIFY(opened.openBy(&opened.window.table()));
        QCOMPARE(opened.count(), 16);
        QCOMPARE(opened.label->text(), u"16 Results Found"_s);
        for (const int row : {0, 15})
            QVERIFY(opened.list->model()->index(row, 0).data().toString().startsWith(
                opened.text(row, TrackField::Title)));
        QVERIFY(opened.marked(0).isEmpty());
    }

    void typedLettersRankAndMark()
    {
        Opened opened;
        QVERIFY(opened.openBy(&opened.window.table()));
        QTest::keyClicks(opened.field, u"ete"_s);
        QCOMPARE(opened.current(), u"Été à la plage – Zoé Lumière"_s); // accents do not count
        QCOMPARE(opened.marked(0), u"Été"_s);
        QVERIFY(opened.count() < 16);
        QVERIFY(opened.label->text().startsWith(QString::number(opened.count())));
        QVERIFY(opened.field->accessibleDescription().contains(opened.current()));
        opened.field->setText(u"zzqq"_s);
        QCOMPARE(opened.count(), 0);
        QTest::keyClick(opened.field, Qt::Key_Return); // chooses nothing
        QVERIFY(opened.quick->isVisible());
        opened.field->setText(u"404"_s); // has no letters that could count
        QCOMPARE(opened.current(), u"Track 7 – Nobody & the 404s"_s);
        QCOMPARE(opened.marked(0), u"404"_s);
    }

    void returnSelectsTheTrackWhereverItIsSortedTo()
    {
        Opened opened;
        QVERIFY(opened.openBy(opened.findField()));
        opened.window.table().sortByColumn(int(TrackField::Year), Qt::DescendingOrder); // meanwhile
        QTest::keyClicks(opened.field, u"fjord"_s);
        QTest::keyClick(opened.field, Qt::Key_Return);
        QVERIFY(!opened.quick->isVisible());
        QCOMPARE(opened.currentCell(), u"08 Fjord.ogg/1"_s);
        const QItemSelectionModel *selection = opened.window.table().selectionModel();
        QCOMPARE(selection->selectedRows().size(), 1);
        QCOMPARE(selection->selectedRows().first().row(), opened.window.table().currentIndex().row());
        QVERIFY(opened.window.table().hasFocus());
    }

    void keysMoveThroughTheList()
    {
        Opened opened;
        QVERIFY(opened.openBy(&opened.window.table()));
        const auto press = [&opened](Qt::Key key) {
            QTest::keyClick(opened.field, key);
            return opened.list->currentIndex().row();
        };
        QCOMPARE(press(Qt::Key_Down), 1);
        QCOMPARE(press(Qt::Key_Down), 2);
        QCOMPARE(press(Qt::Key_Up), 1);
        QVERIFY(press(Qt::Key_PageDown) > 2);
        QCOMPARE(press(Qt::Key_PageUp), 0);
        QVERIFY(opened.field->hasFocus());
        press(Qt::Key_Down);
        const QString second = opened.current();
        press(Qt::Key_Return);
        QVERIFY(second.startsWith(opened.window.table().currentIndex().data().toString()));
    }

    void aClickChooses()
    {
        Opened opened;
        QVERIFY(opened.openBy(&opened.window.table()));
        const QRect third = opened.list->visualRect(opened.list->model()->index(2, 0));
        QTest::mouseClick(opened.list->viewport(), Qt::LeftButton, {}, third.center());
        QVERIFY(!opened.quick->isVisible());
        QCOMPARE(opened.window.table().currentIndex().row(), 2);
    }

    void escapeGivesTheFocusBack()
    {
        Opened opened;
        QVERIFY(opened.openBy(opened.findField()));
        QTest::keyClick(opened.field, Qt::Key_Escape);
        QVERIFY(!opened.quick->isVisible());
        QVERIFY(opened.findField()->hasFocus());
        QCOMPARE(opened.window.table().selectionModel()->hasSelection(), false);
        opened.window.table().setFocus();
        QTest::keyClick(&opened.window.table(), Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(opened.field, Qt::Key_Escape);
        QVERIFY(opened.window.table().hasFocus());
    }

    void itClosesWhenTheFocusGoesElsewhereAndBeginsAnew()
    {
        Opened opened;
        QVERIFY(opened.openBy(&opened.window.table()));
        QTest::keyClicks(opened.field, u"fjord"_s);
        QTest::keyClick(opened.field, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!opened.quick->isVisible());
        QVERIFY(opened.findField()->hasFocus());
        QTest::keyClick(opened.findField(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(opened.field->text(), QString());
        QCOMPARE(opened.count(), 16);
    }

private:
    QTemporaryDir m_store;
};

QTEST_MAIN(tst_QuickOpen)
#include "tst_QuickOpen.moc"
