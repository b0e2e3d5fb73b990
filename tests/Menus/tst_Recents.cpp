// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVMenuRecents.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVUTTypeFromExtensionOrIdentifier.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QCborMap>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QString Name = u"Export/Folder"_s;
const QString RecentsName = Name + u".recentURLs"_s;

class Delegate : public QObject, public ZEVURLPopUpButtonDelegate {
public:
    void didSelectURL(ZEVURLPopUpButton *, const QUrl &url) override
    {
        told.append(ZEVFileReference::filePathURL(url).fileName());
    }
    void willDisplayOpenPanel(ZEVURLPopUpButton *, ZEVOpenPanel &panel) override { panel.title = u"Mine"_s; }

    QStringList told;
};

/// "(title)" is the checked item, "-" a separator; what is not to be seen is left out.
QString shown(const QMenu &menu)
{
    QStringList titles;
    for (const QAction *item : menu.actions()) {
        const auto attributed = ZEVMenuItem::attributedTitle(item);
        const QString title = attributed ? attributed->string() : ZEVMenuItem::title(item);
        if (item->isVisible())
            titles.append(item->isSeparator() ? u"-"_s : item->isChecked() ? u'(' + title + u')' : title);
    }
    return titles.join(u'|');
}

} // namespace

class tst_Recents : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QUrl made(const QString &name)
    {
        const QString path = m_folder->filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QFile::WriteOnly) ? QUrl::fromLocalFile(path) : QUrl();
    }

    static QString shown(const ZEVURLPopUpButton &button) { return ::shown(*button.menu()); }

    static std::unique_ptr<ZEVURLPopUpButton> saving()
    {
        auto button = std::make_unique<ZEVURLPopUpButton>();
        button->setAutosaveName(Name);
        return button;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const QString store = m_folder->filePath(u"store"_s);
        ZEVUserDefaults::setStandardStore(std::make_unique<QSettings>(store, QSettings::IniFormat));
    }

    void menusNameTheFoldersOfNamesakes()
    {
        QMenu menu;
        QUrl chosen;
        const QUrl second = made(u"b/Cover & more.jpg"_s);
        ZEVMenuRecents::fillWithRecentsItemURLs(
            &menu,
            {made(u"a/Cover & more.jpg"_s), made(u"c/Other.jpg"_s), second, made(u"d/Cover & more.jpg"_s)},
            [&](const QUrl &url) { chosen = url; });
        QCOMPARE(
            ::shown(menu),
            u"Cover & more.jpg —\u00A0a|Other.jpg|Cover & more.jpg —\u00A0b|Cover & more.jpg —\u00A0d"_s);
        QCOMPARE(ZEVMenuItem::title(menu.actions()[0]), u"Cover & more.jpg"_s);
        menu.actions()[2]->trigger();
        QTRY_COMPARE(chosen, second);
    }

    void theMenuIsInTheDescribedOrder()
    {
        ZEVURLPopUpButton button;
        QCOMPARE(shown(button), u"(None)|Choose…"_s);
        for (const char *name : {"track 10", "Track 9", "Ärger", "zoo"})
            button.setURL(made(QString::fromUtf8(name)));
        button.addRecentURL(made(u"Last"_s));
        QCOMPARE(shown(button), u"(zoo)|Last|Ärger|Track 9|track 10|-|None|Choose…"_s);
        QCOMPARE(button.text(), u"zoo"_s);
        QVERIFY(!button.noneItem()->isCheckable()); // or it had an empty box
        button.setStaticMenuOrder(true);
        button.buildMenu();
        QCOMPARE(shown(button), u"Ärger|Last|Track 9|track 10|(zoo)|-|None|Choose…"_s);
        made(u"b/Last"_s);
        button.setURL(QUrl::fromLocalFile(m_folder->filePath(u"b/Last"_s))); // the sixth: "track 10" goes
        QCOMPARE(shown(button).section(u'|', 1, 2),
                 u"(Last —\u00A0b)|Last —\u00A0%1"_s.arg(QDir(m_folder->path()).dirName()));
        QVERIFY(!shown(button).contains(u"10"));
        QVERIFY(button.recentURLSet().size() == 5);
        QFile::remove(m_folder->filePath(u"zoo"_s));
        button.menu()->popup({});
        QVERIFY(!shown(button).contains(u"zoo"));
        button.menu()->close();
        button.setURL(QUrl(u"http://example.com/x"_s));
        QVERIFY(!shown(button).contains(u"zoo"));
        QVERIFY(shown(button).contains(u"(None)"));
        QVERIFY(!button.URL().isValid());
    }

    void theMaximumIsHeld()
    {
        ZEVURLPopUpButton button;
        for (const auto &[set, held] : {std::pair(1000, 254), {-7, 5}, {0, 0}, {2, 2}}) {
            button.setMaximumRecentURLCount(set);
            COMPARE_ROW(set, button.maximumRecentURLCount(), held);
        }
        const QUrl a = made(u"a"_s), b = made(u"b"_s);
        for (const QUrl &url : {a, b, a})
            button.addRecentURL(url);
        QCOMPARE(button.recentURLSet(),
                 (QList{ZEVFileReference::fileReferenceURL(a), ZEVFileReference::fileReferenceURL(b)}));
        QCOMPARE(button.bookmarksKeyedByURL().size(), 2);
    }

    void whatIsStoredIsFoundAgain()
    {
        const auto stored = [](const QString &key) {
            return ZEVUserDefaults::standardUserDefaults()->objectForKey(key);
        };
        auto button = saving();
        for (const char *name : {"gone", "a", "b", "c"})
            button->setURL(made(QString::fromLatin1(name)));
        button->setURL(made(u"b"_s));
        QVERIFY(stored(button->selectedURLDefaultsKey()).isValid());
        QVERIFY(stored(button->recentURLsDefaultsKey()).isValid());
        button->addRecentURL(made(u"c"_s)); // which is not the selected one
        button = saving();
        QCOMPARE(QFileInfo(button->recentURLSet().first().path()).fileName(), u"c"_s);
        button->addRecentURL(made(u"b"_s));
        QFile::rename(m_folder->filePath(u"b"_s), m_folder->filePath(u"renamed & b"_s));
        QFile::remove(m_folder->filePath(u"gone"_s));
        // A program that saves puts another file in the old one's place.
        QFile::rename(m_folder->filePath(u"a"_s), m_folder->filePath(u"a~"_s));
        made(u"a"_s);
        QFile::remove(m_folder->filePath(u"a~"_s));
        button->addRecentURL(made(u"a"_s));
        QCOMPARE(shown(*button), u"(renamed & b)|a|c|-|None|Choose…"_s);
        button = saving();
        QCOMPARE(shown(*button), u"(renamed & b)|a|c|-|None|Choose…"_s);
        QCOMPARE(button->text(), u"renamed && b"_s);
        button->clearRecents();
        QVERIFY(!stored(RecentsName).isValid());
        QVERIFY(shown(*button).contains(u"a|c"));
        button = saving(); // what was cleared stays so
        QVERIFY(button->recentURLSet().isEmpty());
        QVERIFY(button->URL().isValid());
        QVERIFY(!stored(RecentsName).isValid());
        QFile::remove(m_folder->filePath(u"renamed & b"_s));
        button = saving();
        QCOMPARE(shown(*button), u"(None)|Choose…"_s);
        QVERIFY(!stored(Name).isValid());
        button->setAutosaveName({});
        button->setURL(made(u"c"_s));
        QVERIFY(!stored(Name).isValid());
        QVERIFY(!stored(RecentsName).isValid());
    }

    void foreignDefaultsGiveAnEmptyList()
    {
        const QByteArray bookmark = ZEVURLBookmarkAdditions::bookmarkWithError(made(u"a"_s));
        const QVariant rows[] = {
            u"text"_s, 7, QVariantMap{{u"a"_s, 1}},
            QVariantList{7, QByteArray("\xff\x00"), bookmark.first(bookmark.size() / 2)}};
        for (const QVariant &row : rows) {
            ZEVUserDefaults::standardUserDefaults()->setObject(row, RecentsName);
            ZEVUserDefaults::standardUserDefaults()->setObject(row, Name);
            const auto button = saving();
            COMPARE_ROW(row, shown(*button), u"(None)|Choose…"_s);
        }
        ZEVUserDefaults::standardUserDefaults()->setObject(QVariantList{7, bookmark, bookmark}, RecentsName);
        QCOMPARE(shown(*saving()), u"a|-|(None)|Choose…"_s);
    }

    void drivesThatAreNotMounted()
    {
        const auto on = [&](const QString &volume) {
            QCborMap map =
                QCborValue::fromCbor(ZEVURLBookmarkAdditions::bookmarkWithError(made(u"x"_s))).toMap();
            for (auto entry = map.begin(); entry != map.end(); ++entry) {
                if (entry.key().toString().contains(u"Reference"))
                    entry.value() = u"file:///nowhere/x#id=1.2.3"_s;
                else if (entry.key().toString().contains(u"Volume"))
                    entry.value() = QUrl::fromLocalFile(volume).toString();
            }
            return QCborValue(map).toCbor();
        };
        const std::tuple<QString, bool, QString> rows[] = {
            {u"/nowhere"_s, true, u"x|-|(None)|Choose…"_s},
            {u"/nowhere"_s, false, u"(None)|Choose…"_s},
            {u"/"_s, true, u"(None)|Choose…"_s}, // mounted, so the item has gone
        };
        for (const auto &[volume, keeps, titles] : rows) {
            ZEVUserDefaults::standardUserDefaults()->setObject(QVariantList{on(volume)}, RecentsName);
            ZEVURLPopUpButton button;
            button.setKeepsUnmountedURLs(keeps);
            button.setAutosaveName(Name);
            COMPARE_ROW(volume, shown(button), titles);
            ZEVUserDefaults::standardUserDefaults()->setObject(u"file:///nowhere/x#id=1.2.3"_s, Name);
            button.loadDefaults();
            QCOMPARE(button.URL().isValid(), !button.recentURLSet().isEmpty());
            ZEVUserDefaults::standardUserDefaults()->removeObjectForKey(Name);
            button.loadDefaults();
            QCOMPARE(button.menu()->actions().first()->isEnabled(), button.recentURLSet().isEmpty());
            button.saveBookmarks();
            const auto stored = ZEVUserDefaults::standardUserDefaults()->objectForKey(RecentsName).toList();
            QCOMPARE(stored.size(), button.recentURLSet().size());
        }
    }

    void choosing()
    {
        ZEVURLPopUpButton button;
        Delegate delegate;
        button.setDelegate(&delegate);
        button.setAllowedFileTypes(QStringList{u"flac"_s, u"public.image"_s, u"no such type"_s});
        QSignalSpy changes(&button, &ZEVURLPopUpButton::URLDidChange);
        const QUrl a = made(u"a.flac"_s);
        ZEVOpenPanel asked;
        const auto choose = [&](int response) {
            ZEVOpenPanel::setRunner([&](ZEVOpenPanel &panel) {
                asked = panel;
                panel.URL = a;
                return response;
            });
            button.otherItem()->trigger();
            QCoreApplication::processEvents();
        };
        choose(ZEVOpenPanel::CancelResponse);
        QVERIFY(delegate.told.isEmpty());
        QVERIFY(shown(button) == u"(None)|Choose…"_s);
        choose(ZEVOpenPanel::OKResponse);
        QCOMPARE(delegate.told, QStringList(u"a.flac"_s));
        QVERIFY(asked.title == u"Mine");
        QVERIFY(asked.prompt == u"Choose");
        QVERIFY(asked.canChooseFiles);
        QCOMPARE(asked.allowedContentTypes, (QStringList{u"audio/flac"_s, u"public.image"_s}));
        choose(ZEVOpenPanel::CancelResponse);
        QCOMPARE(shown(button), u"(a.flac)|-|None|Choose…"_s);
        button.noneItem()->trigger();
        QTRY_COMPARE(delegate.told, QStringList({u"a.flac"_s, QString()}));
        QCOMPARE(shown(button), u"a.flac|-|(None)|Choose…"_s);
        QCOMPARE(changes.size(), 2);
        ZEVOpenPanel::setRunner({});
    }

    void dropping()
    {
        ZEVURLPopUpButton button;
        Delegate delegate;
        button.setDelegate(&delegate);
        const QUrl remote(u"https://example.com/a.png"_s);
        const std::tuple<QUrl, std::optional<QStringList>, Qt::DropAction> rows[] = {
            {QUrl(), std::nullopt, Qt::IgnoreAction},
            {remote, std::nullopt, Qt::CopyAction},
            {remote, QStringList{u"png"_s}, Qt::IgnoreAction},
            {made(u"a.png"_s), QStringList{u"mp3"_s, u"public.image"_s}, Qt::CopyAction},
            {made(u"a.png"_s), QStringList{u"mp3"_s}, Qt::IgnoreAction},
            {QUrl::fromLocalFile(m_folder->path()), QStringList{u"public.folder"_s}, Qt::CopyAction},
            {QUrl::fromLocalFile(m_folder->path()), QStringList{u"public.item"_s}, Qt::CopyAction},
            {QUrl::fromLocalFile(m_folder->path()), QStringList{u"public.data"_s}, Qt::IgnoreAction},
            {made(u"a.png"_s), QStringList{u"public.data"_s}, Qt::CopyAction},
            {made(u"a.png"_s), QStringList{u"public.content"_s}, Qt::CopyAction},
            {made(u"a.png"_s), QStringList{u"public.text"_s}, Qt::IgnoreAction},
            {made(u"a.json"_s), QStringList{u"public.text"_s}, Qt::CopyAction},
            {made(u"a.mp4"_s), QStringList{u"public.movie"_s}, Qt::CopyAction},
            {QUrl::fromLocalFile(u"/no/a.png"_s), QStringList{u"png"_s}, Qt::IgnoreAction},
        };
        for (const auto &[url, types, action] : rows) {
            QMimeData data;
            if (url.isValid())
                data.setUrls({url});
            button.setAllowedFileTypes(types);
            COMPARE_ROW(url, button.draggingEntered(&data), action);
        }
        QMimeData data;
        data.setUrls({made(u"a.png"_s)});
        button.setAllowedFileTypes({});
        QDragEnterEvent enter({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop}) {
            event->setDropAction(Qt::MoveAction);
            QApplication::sendEvent(&button, event);
            QVERIFY(event->isAccepted());
            QVERIFY(event->dropAction() == Qt::CopyAction);
        }
        QVERIFY(button.text() == u"a.png");
        QVERIFY(delegate.told.isEmpty());
        QTRY_COMPARE(delegate.told, QStringList(u"a.png"_s));
        data.setUrls({remote});
        QVERIFY(!button.performDragOperation(&data));
        QVERIFY(button.text() == u"a.png");
    }
};

QTEST_MAIN(tst_Recents)
#include "tst_Recents.moc"
