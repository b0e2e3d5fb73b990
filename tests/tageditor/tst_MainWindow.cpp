// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/inspector/Inspector.h>
#include <tageditor/tracks/TrackInfo.h>
#include <tageditor/window/FilterField.h>
#include <tageditor/window/ProgressView.h>

#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

class tst_MainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { useStoreIn(m_store); }

    void theSampleIsShown()
    {
        Shown shown;
        QVERIFY(shown.visible);
        auto *progress = shown.window.statusBar()->findChild<QProgressBar *>();
        QVERIFY(!progress->isVisible());
        shown.window.openFolder(Samples::folder());
        QVERIFY(progress->isVisible()); // the window is there before the first track is
        QCOMPARE(shown.window.tracks().rowCount(), 0);
        QSignalSpy read(&shown.window, &MainWindow::folderRead);
        QVERIFY(read.wait());
        QVERIFY(!progress->isVisible());
        QCOMPARE(shown.status(), u"16 tracks|"_s);
    }

    void readingCanBeStopped()
    {
        Shown shown;
        QVERIFY(shown.visible);
        shown.window.openFolder(Samples::folder());
        auto *cancel = shown.window.findChild<ProgressView *>()->findChild<QAbstractButton *>();
        QTest::mouseClick(cancel, Qt::LeftButton);
        QTest::qWait(100); // nothing comes any more
        QCOMPARE(shown.status(), u"0 tracks|Reading was stopped: tracks are missing"_s);
    }

    void aClickOnAHeaderSorts()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        const auto firstYear = [&] { return shown.window.tracks().track(0).text(TrackField::Year); };
        QHeaderView *header = shown.window.table().horizontalHeader();
        const int x = header->sectionViewportPosition(int(TrackField::Year)) + 10;
        const QPoint year(x, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"1987"_s);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"2021"_s);
        QVERIFY(shown.open(Samples::folder() + u"/Harbour"_s)); // what is read next is sorted too
        QCOMPARE(firstYear(), u"1999"_s);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
        QCOMPARE(firstYear(), u"1998"_s); // as it was read
    }

    void tracksAreFilteredAsOneTypes()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        const TrackTableModel &tracks = shown.window.tracks();
        auto *filter = shown.window.findChild<FilterField *>();
        const auto names = [&] {
            QStringList files;
            for (int row = 0; row < tracks.rowCount(); ++row)
                files.append(tracks.track(row).text(TrackField::FileName).left(2));
            return files.join(u' ');
        };
        const_cast<TrackTableModel &>(tracks).setData(tracks.index(3, 1), u"hidden"_s, Qt::EditRole);
        QTest::keyClick(&shown.window, Qt::Key_L, Qt::ControlModifier);
        QTest::keyClicks(filter, u"hrblig 1998"_s); // an abbreviation, and a text as it stands
        QCOMPARE(names(), u"01 02"_s);
        QCOMPARE(shown.status(), u"2 of 16 tracks|"_s);
        QVERIFY(shown.window.isWindowModified());
        shown.select(1, TrackField::Year);
        QTest::keyClicks(filter, u" folk"_s);
        QCOMPARE(shown.window.table().selectionModel()->selectedIndexes(),
                 {tracks.index(1, int(TrackField::Year))});
        QTest::keyClick(&shown.window.table(), Qt::Key_Z,
                        Qt::ControlModifier); // of a track that is not shown
        QVERIFY(!shown.window.isWindowModified());
        shown.window.table().sortByColumn(TrackFieldCount + int(TrackFact::Size), Qt::DescendingOrder);
        QVERIFY(tracks.track(0).fileSize > tracks.track(1).fileSize);
        QTest::keyClick(filter, Qt::Key_Escape);
        QCOMPARE(tracks.rowCount(), 16);
        for (int row = 1; row < 16; ++row) // not by the texts: "994 bytes" are less than "3 KB"
            QVERIFY(tracks.track(row - 1).fileSize >= tracks.track(row).fileSize);
        shown.find(u"boat"_s);
        shown.action(u"Only Tracks"_s)->trigger();
        QCOMPARE(names(), u"02"_s);
        shown.action(u"Only Tracks"_s)->trigger();
        QCOMPARE(tracks.rowCount(), 16);
    }

    void aFolderThatIsNotThereIsTold()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(u"/no/such/folder"_s));
        QCOMPARE(shown.status(),
                 u"0 tracks|The folder “/no/such/folder” could not be read: No such file or directory"_s);
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s));
        QCOMPARE(shown.status(), u"2 tracks|"_s);
    }

    void filesOpenTheirFolderAndAreSelected()
    {
        const QString folder = Samples::folder() + u"/Harbour/"_s;
        Shown shown;
        QVERIFY(shown.visible);
        const auto selected = [&] {
            QStringList names;
            for (const QModelIndex &row : shown.window.table().selectionModel()->selectedRows())
                names.append(row.data().toString().left(2));
            return names.join(u' ');
        };
        QSignalSpy read(&shown.window, &MainWindow::folderRead);
        shown.window.open({folder + u"03 Percent.m4a"_s});
        QVERIFY(read.wait());
        QCOMPARE(selected(), u"03"_s);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(folder + u"../Harbour/01 Track 12.mp3"_s),
                      QUrl::fromLocalFile(folder + u"02 Slow Boat.mp3"_s)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QDropEvent drop({10, 10}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&shown.window, &enter);
        QCoreApplication::sendEvent(&shown.window, &drop);
        QVERIFY(enter.isAccepted());
        QVERIFY(drop.dropAction() == Qt::CopyAction);
        QTRY_COMPARE(selected(), u"01 02"_s);
        QCOMPARE(shown.window.folder(), Samples::folder() + u"/Harbour"_s);
    }

    void unreadableFilesAreRowsOfTheirOwn()
    {
        const QTemporaryDir folder;
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"<b>.ogg"_s), 0));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        QCOMPARE(shown.status(), u"2 tracks, 1 unreadable|"_s);
        const QModelIndex title = shown.window.table().model()->index(0, int(TrackField::Title));
        QCOMPARE(title.data().toString(), QString());
        QCOMPARE(title.data(TrackTableModel::ErrorRole).toString(), u"Empty file"_s);
        QVERIFY(title.data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;.ogg"));
    }

    void theSizesAreThoseOfTheSelectionOrOfAll()
    {
        const QTemporaryDir folder;
        const auto size = [&](const char *name) {
            return QFileInfo(folder.filePath(QLatin1String(name))).size();
        };
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        QVERIFY(Samples::copy(u"Track 7.m4a"_s, folder.filePath(u"b.m4a"_s)));
        QFile damaged(folder.filePath(u"c.ogg"_s)); // and too large to be lost in the rounding
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        QVERIFY(damaged.resize(500'000));
        const auto texts = [](const QVariantList &sizes) {
            return FileSizeTransformer().transformedValue(sizes).toString();
        };
        const QVariant none = QVariant::fromValue(nullptr);
        const QVariantList all{size("a.ogg"), size("b.m4a"), none};
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        QVERIFY(all.at(0) != all.at(1));
        QCOMPARE(shown.sizes(), texts(all));
        shown.select(1, TrackField::Year);
        shown.select(1, TrackField::Title); // another cell of the same track
        QCOMPARE(shown.sizes(), u"1 selected: "_s + texts({size("b.m4a")}));
        shown.select(0, TrackField::Title);
        QCOMPARE(shown.sizes(), u"2 selected: "_s + texts({size("a.ogg"), size("b.m4a")}));
        shown.select(2, TrackField::Title);
        QCOMPARE(shown.sizes(), u"3 selected: "_s + texts(all));
        shown.window.table().clearSelection();
        QCOMPARE(shown.sizes(), texts(all));
        QVERIFY(shown.open(Samples::folder() + u"/Sever"_s)); // nothing of the other folder remains
        QVERIFY(!shown.sizes().isEmpty());
        QVERIFY(shown.sizes() != texts(all));
    }

    void everyControlHasANameForScreenReaders()
    {
        Shown shown;
        const auto named = [](const QWidget *control) {
            const QAccessibleInterface *face =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
            return face && !face->text(QAccessible::Name).isEmpty();
        };
        for (const QWidget *pane : QWidgetList{shown.bar().view(), &shown.window.inspector()}) {
            int controls = 0;
            for (const QWidget *control : pane->findChildren<QWidget *>()) {
                const bool isPart = control->parentWidget()->focusPolicy() != Qt::NoFocus; // of a control
                if (control->focusPolicy() == Qt::NoFocus || isPart)
                    continue;
                ++controls;
                QVERIFY2(named(control), qPrintable(control->objectName()));
            }
            QVERIFY(controls > 3);
        }
        QVERIFY(named(&shown.window.table()));
    }

    void theSizeIsRemembered()
    {
        const QSize size(871, 477);
        {
            Shown shown;
            shown.window.resize(size);
            QTRY_COMPARE(shown.window.size(), size);
            shown.window.close();
        }
        const MainWindow window;
        QCOMPARE(window.size(), size);
    }

private:
    QTemporaryDir m_store;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
