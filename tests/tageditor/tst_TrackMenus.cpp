// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/menus/GenreMenu.h>
#include <tageditor/menus/TrackMenus.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

using namespace Qt::StringLiterals;

class tst_TrackMenus : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_store;

    static QString titles(const QMenu &menu)
    {
        QStringList titles;
        for (const QAction *item : menu.actions()) {
            if (item->isVisible() && !item->isSeparator())
                titles.append(ZEVMenuItem::title(item));
        }
        return titles.join(u'|');
    }

private Q_SLOTS:
    void init()
    {
        m_store = std::make_unique<QTemporaryDir>();
        useStoreIn(*m_store);
    }

    void genresAreTypedAndSetInOneStep()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        auto *genres = shown.window.findChild<GenreMenu *>();
        const auto choose = [&](const QString &typed) {
            genres->popup({50, 50});
            QVERIFY(QTest::qWaitForWindowExposed(genres));
            QTest::keyClicks(genres->focusWidget(), typed);
            QTest::keyClick(genres->focusWidget(), Qt::Key_Return);
            QTRY_VERIFY(!genres->isVisible());
            QCoreApplication::processEvents();
        };
        shown.select(0, TrackField::Title);
        shown.select(4, TrackField::Artist);
        const QStringList before{shown.text(0, TrackField::Genre), shown.text(4, TrackField::Genre)};
        choose(u"psybient"_s);
        for (const int row : {0, 4})
            QCOMPARE(shown.text(row, TrackField::Genre), u"Psybient"_s);
        QVERIFY(shown.text(1, TrackField::Genre) != u"Psybient");
        shown.action(u"Undo"_s)->trigger();
        QCOMPARE((QStringList{shown.text(0, TrackField::Genre), shown.text(4, TrackField::Genre)}), before);
        shown.window.table().clearSelection();
        shown.select(0, TrackField::Title);
        genres->popup({50, 50}); // the former filter is gone
        int checked = 0;
        for (const QAction *item : genres->findChildren<QAction *>())
            checked += item->isChecked() && ZEVMenuItem::title(item) == before.first() ? 1 : 0;
        QCOMPARE(checked, 1);
        QVERIFY(genres->actions().size() > 5);
    }

    void tracksHaveApplications()
    {
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(Samples::folder()));
        auto *menus = shown.window.findChild<TrackMenus *>();
        const std::unique_ptr<QMenu> empty(menus->makeContextMenu());
        QVERIFY(!empty->actions().first()->isEnabled());
        shown.select(0, TrackField::Title);
        const std::unique_ptr<QMenu> menu(menus->makeContextMenu());
        QMenu *openWith = menu->actions().first()->menu();
        openWith->popup({50, 50});
        QVERIFY(titles(*openWith).endsWith(u"Choose…"_s));
    }

    void foldersAreOpenedAgain()
    {
        const QTemporaryDir place;
        const QString first = u"Sea"_s, second = u"Hills"_s; // short ones: a button shortens what is long
        const QDir one(place.filePath(first)), other(place.filePath(second));
        QVERIFY(one.mkpath(u"."_s));
        QVERIFY(other.mkpath(u"."_s));
        Shown shown;
        auto *button = shown.window.findChild<ZEVURLPopUpButton *>();
        QCOMPARE(titles(*button->menu()), u"Choose…"_s);
        QVERIFY(shown.visible);
        QVERIFY(shown.open(one.path()));
        QVERIFY(shown.open(other.path()));
        QCOMPARE(titles(*button->menu()), QStringList({second, first, u"Choose…"_s}).join(u'|'));
        QMenu *recents = shown.action(u"Open Recent"_s)->menu();
        recents->popup({50, 50});
        QCOMPARE(titles(*recents), QStringList({second, first, u"Clear Recents"_s}).join(u'|'));
        recents->close();
        const QSignalSpy read(&shown.window, &MainWindow::folderRead);
        recents->actions()[1]->trigger();
        QTRY_COMPARE(read.size(), 1);
        QCOMPARE(shown.window.folder(), one.path());
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, one.filePath(u"a.ogg"_s)));
        QVERIFY(shown.open(one.path()));
        shown.select(0, TrackField::Title);
        Q_EMIT shown.window.findChild<GenreMenu *>()->genreChosen(u"Folk"_s);
        shown.window.setDiscardQuestion([] { return false; });
        ZEVOpenPanel::setRunner([&](ZEVOpenPanel &panel) {
            panel.URL = QUrl::fromLocalFile(other.path());
            return panel.canChooseFiles ? 0 : 1;
        });
        button->otherItem()->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(shown.window.folder(), one.path());
        QCOMPARE(button->text(), first); // its texts were kept
        ZEVOpenPanel::setRunner({});
    }
};

QTEST_MAIN(tst_TrackMenus)
#include "tst_TrackMenus.moc"
