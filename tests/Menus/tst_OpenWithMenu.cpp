// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVWorkspaceOpenWithMenu.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplications_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// GIO asks for the folders of entries and associations once a process.
struct DataFolder {
    DataFolder()
    {
        for (const char *variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            qputenv(variable, QFile::encodeName(folder.filePath(QString::fromLatin1(variable))));
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
        QDir().mkpath(applications());
        // The shared types are those of the system.
        QFile::link(u"/usr/share/mime"_s, folder.filePath(u"XDG_DATA_HOME/mime"_s));
    }

    QString applications() const { return folder.filePath(u"XDG_DATA_HOME/applications"_s); }

    QUrl write(const QString &name, const QByteArray &contents) const
    {
        QFile file(QDir(applications()).filePath(name));
        file.open(QFile::WriteOnly);
        file.write(contents);
        return QUrl::fromLocalFile(file.fileName());
    }

    QTemporaryDir folder;
};

const DataFolder data; // before anything asks

QUrl writeEntry(const QString &file, const QByteArray &name, const QByteArray &more = {})
{
    return data.write(file + u".desktop"_s,
                      "[Desktop Entry]\nType=Application\nName=" + name
                          + "\nMimeType=audio/flac;\nVersion=1.5\n"
                          + (more.contains("Exec=") ? more : "Exec=zev-stub %F\n" + more));
}

QUrl track(const QByteArray &name)
{
    const QByteArray path = QFile::encodeName(data.folder.path()) + '/' + name;
    QFile file(QFile::decodeName(path));
    file.open(QFile::WriteOnly);
    return QUrl::fromLocalFile(file.fileName());
}

QString shown(const QMenu &menu)
{
    QStringList titles;
    for (const QAction *item : menu.actions())
        titles.append(item->isSeparator() ? u"-"_s : ZEVMenuItem::title(item));
    return titles.join(u'|');
}

QString menuFor(const QList<QUrl> &urls)
{
    QMenu menu;
    menu.addAction(u"before"_s);
    ZEVWorkspaceOpenWithMenu::setupMenu(&menu, urls);
    return shown(menu);
}

} // namespace

class tst_OpenWithMenu : public QObject {
    Q_OBJECT

private:
    /// What the stub was called with, each argument with a zero after it.
    QByteArray calls() const
    {
        QFile file(data.folder.filePath(u"calls"_s));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void onlyExecutablesAreOffered()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"inner"_s));
        for (const QString &name : {u"plain"_s, u"program"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QFile::WriteOnly));
            file.setPermissions(name == u"plain" ? QFile::ReadOwner : QFile::ReadOwner | QFile::ExeOwner);
        }
        ZEVOpenPanel panel;
        panel.canChooseFiles = panel.onlyExecutables = true;
        panel.directoryURL = QUrl::fromLocalFile(folder.path());
        QStringList offered;
        QTimer::singleShot(0, qApp, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            const auto *view = dialog->findChild<QListView *>(u"listView"_s);
            const auto names = [&] {
                offered.clear();
                for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
                    offered += view->model()->index(row, 0, view->rootIndex()).data().toString();
                return offered.size();
            };
            const bool isFilled = QTest::qWaitFor([&] { return names() >= 2; });
            dialog->reject();
            QVERIFY2(isFilled, qPrintable(offered.join(u",")));
        });
        QCOMPARE(panel.runModal(), ZEVOpenPanel::CancelResponse);
        offered.sort();
        QCOMPARE(offered, (QStringList{u"inner"_s, u"program"_s}));
    }

    void initTestCase()
    {
        QFile stub(data.folder.filePath(u"zev-stub"_s));
        QVERIFY(stub.open(QFile::WriteOnly));
        const QByteArray folder = QFile::encodeName(data.folder.path());
        stub.write(
            "#!/bin/sh\n{ printf '%s\\0' \"$@\"; printf '[%s]' \"${DESKTOP_STARTUP_ID:+started}\"; } > '"
            + folder + "/calls~'\nmv '" + folder + "/calls~' '" + folder + "/calls'\n");
        stub.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        writeEntry(u"player"_s, "Player", "X-AppImage-Version=9\n");
        writeEntry(u"p10"_s, "Tagger", "X-AppImage-Version=10.2\n");
        writeEntry(u"p9"_s, "Tagger", "X-AppImage-Version=9.8\n");
        writeEntry(u"p9-again"_s, "Tagger", "X-AppImage-Version=9.8\n");
        writeEntry(u"glued"_s, "Tagger9", "X-AppImage-Version=.8\n"); // the same name and version in one
        writeEntry(u"own"_s, "Our Own Editor");
        writeEntry(u"unseen"_s, "Unseen", "NoDisplay=true\n");
        writeEntry(u"old"_s, "ärger.app");
        writeEntry(u"snapp"_s, "Snapp");
        writeEntry(u"draw"_s, "Draw.io app");
        writeEntry(u"fifteen"_s, "Fifteen letters", "X-AppImage-Version=1\n");
        writeEntry(u"fourteen"_s, "Fourteen lette", "X-AppImage-Version=1\n");
        writeEntry(u"gone"_s, "Gone", "Exec=zev-no-such-program %F\n");
        // As update-desktop-database writes it, and the user's own choices.
        data.write(
            u"mimeinfo.cache"_s,
            "[MIME Cache]\nimage/png=own.desktop\naudio/ogg=own.desktop;player.desktop\n"
            "audio/flac=p9.desktop;own.desktop;old.desktop;player.desktop;p10.desktop;p9-again.desktop;"
            "glued.desktop;snapp.desktop;draw.desktop;fifteen.desktop;fourteen.desktop;gone.desktop\n");
        data.write(u"mimeapps.list"_s,
                   "[Default Applications]\naudio/flac=player.desktop\nimage/png=own.desktop\n"
                   "audio/ogg=player.desktop\n");
        QGuiApplication::setDesktopFileName(u"own"_s);
    }

    void init() { QFile::remove(data.folder.filePath(u"calls"_s)); }

    void applicationsAreListed()
    {
        QCOMPARE(menuFor({track("a.flac"), track("b.png")}),
                 u"Player (Default)|-|ärger|Draw.io app|Fifteen letters|Fourteen lette (1)|Snapp|Tagger "
                 u"(10.2)|Tagger (9.8)|"
                 u"-|Choose…"_s);
        QCOMPARE(menuFor({track("b.png"), track("a.flac")}), u"Choose…"_s); // only we open it
        QCOMPARE(menuFor({track("c.ogg")}), u"Player (Default)|-|Choose…"_s);
        QCOMPARE(menuFor({track("d.zev-no-type")}), u"Choose…"_s);
        QCOMPARE(menuFor({}), u"before"_s);
    }

    void namesArriveUnchanged()
    {
        const QByteArrayList names{
            "$(x).flac",       "-rf",          "a b.flac", "%f %U.flac", "two\nlines.flac",
            "\"q' \\ ;&.flac", "\xC3\xA4.flac"};
        QByteArray expected;
        QList<QUrl> urls;
        for (const QByteArray &name : names) {
            urls.append(track(name));
            expected += QFile::encodeName(data.folder.path()) + '/' + name + '\0';
        }
        QMenu menu;
        ZEVWorkspaceOpenWithMenu::setupMenu(&menu, urls);
        menu.actions().first()->trigger();
        QTRY_COMPARE(calls(), expected + "[]");
        init();
        const QUrl stub = QUrl::fromLocalFile(data.folder.filePath(u"zev-stub"_s));
        ZEVWorkspaceOpenWithMenu::openURLs(urls, stub);
        QTRY_COMPARE(calls(), expected + "[]");
    }

    void theDesktopIsToldOfTheStart()
    {
        const QUrl slow = writeEntry(u"slow"_s, "Slow", "StartupNotify=true\nMimeType=x/x;\n");
        QVERIFY(!ZEVApplications::open({track("a.flac")}, slow));
        const bool isOnX11 = QGuiApplication::platformName() == u"xcb";
        QTRY_VERIFY(!calls().isEmpty());
        QVERIFY(calls().endsWith(isOnX11 ? QByteArrayView("[started]") : QByteArrayView("[]")));
    }

    void failuresAreLogged()
    {
        const auto log = [](const QString &status) {
            QTest::ignoreMessage(
                QtWarningMsg,
                QRegularExpression(u"^Couldn't launch /.*: LSOpenFromURLSpec returned -%1/.+"_s.arg(status)));
        };
        const QUrl entry = writeEntry(u"broken"_s, "Broken", "Exec=zev-stub %F\nPath=/no/such/folder\n");
        log(u"10810"_s);
        ZEVWorkspaceOpenWithMenu::openURLs({track("a.flac")}, entry);
        for (const QString &path : {u"/no/such.desktop"_s, u"/no/such/program"_s, u"/etc/passwd"_s}) {
            log(u"10814"_s);
            ZEVWorkspaceOpenWithMenu::openURLs({track("a.flac")}, QUrl::fromLocalFile(path));
        }
        ZEVWorkspaceOpenWithMenu::openURLs({track("a.flac")}, QUrl());
        QVERIFY(calls().isEmpty());
    }

    void anyApplicationIsChosen()
    {
        QMenu menu;
        ZEVWorkspaceOpenWithMenu::setupMenu(&menu, {track("a.flac")});
        const auto choose = [&](const std::function<void(QDialog *)> &answer) {
            QTimer answering;
            connect(&answering, &QTimer::timeout, &menu, [&] {
                auto *chooser = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                if (!chooser)
                    return;
                answering.stop();
                answer(chooser);
            });
            menu.actions().last()->trigger();
            answering.start(0);
            QTRY_VERIFY(!answering.isActive());
        };
        choose([](QDialog *chooser) {
            auto *list = chooser->findChild<QListWidget *>();
            for (const QString &name : {u"Our Own Editor"_s, u"Unseen"_s})
                QVERIFY(list->findItems(name, Qt::MatchExactly).isEmpty());
            auto *filter = chooser->findChild<QLineEdit *>();
            QTest::keyClicks(filter, u"tag"_s);
            QTest::keyClick(filter, Qt::Key_Down);
            QCOMPARE(list->currentItem()->text(), u"Tagger"_s);
            QTest::keyClick(filter, Qt::Key_Return);
        });
        QTRY_VERIFY(calls().contains("a.flac"));
        init();
        choose([](QDialog *chooser) { chooser->reject(); });
        auto *parent = new QWidget;
        parent->show();
        parent->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(parent));
        choose([=](QDialog *chooser) {
            QCOMPARE(chooser->parentWidget(), parent);
            delete parent;
        });
        QVERIFY(calls().isEmpty());
        ZEVOpenPanel::setRunner([](ZEVOpenPanel &panel) {
            panel.URL = QUrl::fromLocalFile(data.folder.filePath(u"zev-stub"_s));
            return panel.onlyExecutables && panel.canChooseFiles ? 1 : 0;
        });
        choose([](QDialog *chooser) {
            for (QPushButton *button : chooser->findChildren<QPushButton *>()) {
                if (button->text() == u"Other…")
                    button->click();
            }
        });
        QTRY_VERIFY(calls().contains("a.flac"));
        ZEVOpenPanel::setRunner({});
    }
};

QTEST_MAIN(tst_OpenWithMenu)
#include "tst_OpenWithMenu.moc"
