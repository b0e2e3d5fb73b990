// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "../Trees.h"
#include "Shown.h"

#include <tageditor/files/FileActions.h>
#include <tageditor/files/FileNamePattern.h>
#include <tageditor/files/RenameDialog.h>
#include <tageditor/menus/TrackMenus.h>

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder, and batches in it by the names of the files.
struct Batches {
    Batches()
        : journal(folder.filePath(u"journal"_s))
        , batch(journal)
    {
        QDir(folder.path()).mkdir(u"f"_s);
        QObject::connect(&batch, &FileBatch::finished,
                         [this](const FileBatch::Result &finished) { result = finished; });
    }

    QByteArray path(const QByteArray &name) const { return folder.path().toUtf8() + "/f/" + name; }
    QByteArray contents() const
    {
        QByteArrayList items;
        for (const QByteArray &name : Trees::names(folder.path().toUtf8() + "/f"))
            items.append(name + '=' + Trees::read(path(name)));
        return items.join(' ');
    }
    bool run(const QList<std::pair<QByteArray, QByteArray>> &names, bool isCopy = false)
    {
        QList<FileChange> changes;
        for (const auto &[from, to] : names)
            changes.append(
                {ZEVFileURL::withPath(path(from)), ZEVFileURL::withPath(path(to)), {}, isCopy, -1});
        batch.run(changes);
        return QTest::qWaitFor([this] { return !batch.isRunning(); });
    }
    bool undo()
    {
        batch.undo();
        return QTest::qWaitFor([this] { return !batch.isRunning(); });
    }

    QTemporaryDir folder;
    FileJournal journal;
    FileBatch batch;
    FileBatch::Result result;
};

struct Answer {
    explicit Answer(int button)
    {
        ZEVAlert::setRunner([=](ZEVAlert &) { return 1000 + button; });
    }
    ~Answer() { ZEVAlert::setRunner({}); }
};

} // namespace

class tst_FileActions : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_home;

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_home.path().toUtf8()); } // of the trash and the journal
    void init() { useStoreIn(m_home); }

    void namesAreMadeOfTags()
    {
        const QString usual = u"%track% - %title%"_s;
        const std::tuple<QString, QString, QString, QByteArray> rows[] = {
            {usual, u"7"_s, u"Été"_s, "07 - Été.mp3"},
            {usual, u"101"_s, u"AC/DC"_s, "101 - AC-DC.mp3"},
            {usual, {}, u"-x-"_s, "x.mp3"},
            {usual, u"7"_s, {}, "07.mp3"},
            {usual, {}, {}, ""},
            {u"%title%"_s, {}, u"..."_s, "_...mp3"},
            {u"%title%"_s, {}, u" a\nb  c "_s, "a b c.mp3"},
            {u"%title%"_s, {}, u"%track%"_s, "%track%.mp3"},
            {u"100%% %nothing% %"_s, {}, {}, "100% %nothing% %.mp3"},
            {u"a/%title%"_s, {}, u"x/y"_s, "a/x-y.mp3"},
            {u"%Album Artist%/%Track%/../%title%"_s, u"1"_s, u"x"_s, "01/_./x.mp3"},
            {u"50% of %Title%"_s, {}, u"x"_s, "50% of x.mp3"},
            {u"%title%"_s, {}, QString(130, u'\u00E9'), QByteArray("\u00E9").repeated(125) + ".mp3"},
        };
        for (const auto &[pattern, number, title, name] : rows) {
            Track track = Samples::track({{}, title, {}, {}, {}, number});
            track.path = "/x/old.mp3";
            COMPARE_ROW(pattern + title, FileNamePattern::fileName(pattern, track), name);
        }
        const Track track = Samples::track({{}, u"<a:b>?."_s});
        QCOMPARE(FileNamePattern::fileName(u"%title%/x"_s, track, FileNamePattern::Rules::Windows),
                 "-a-b--/x");
    }

    void filesAreRenamedByAPatternAndBack()
    {
        const QTemporaryDir folder;
        QVERIFY(Samples::copy(u"Maree/04 Ete.mp3"_s, folder.filePath(u"x.mp3"_s)));
        QVERIFY(Samples::copy(u"Maree/05 Fenetre.flac"_s, folder.filePath(u"y.flac"_s)));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        QVERIFY(!shown.action(u"Rename"_s)->isEnabled());
        QVERIFY(!shown.action(u"Put Files"_s)->isEnabled());
        shown.select(0, TrackField::Title);
        shown.select(1, TrackField::Title);
        shown.action(u"Rename"_s)->trigger();
        auto *dialog = shown.window.findChild<RenameDialog *>();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        const QAbstractItemModel *preview = dialog->findChild<QTableView *>()->model();
        const QString after = preview->index(0, 1).data().toString();
        QVERIFY(after.endsWith(u" - Été à la plage.mp3"));
        auto *line = dialog->findChild<QLineEdit *>();
        line->setText(u"same"_s);
        QCOMPARE(preview->index(1, 1).data().toString(), u"same.flac"_s);
        line->setText(u"%track% - %title%"_s);
        QTest::keyClick(dialog, Qt::Key_Return);
        QTRY_COMPARE(shown.text(0, TrackField::FileName), after);
        QVERIFY(QFile::exists(folder.filePath(after)));
        QVERIFY(!QFile::exists(folder.filePath(u"x.mp3"_s)));
        QTRY_VERIFY(shown.action(u"Undo Rename Files"_s) && shown.action(u"Undo"_s)->isEnabled());
        const QByteArray renamed = Trees::names(folder.path().toUtf8()).join('|');
        shown.action(u"Undo"_s)->trigger();
        QVERIFY(!shown.action(u"Undo"_s)->isEnabled());
        QVERIFY(!shown.action(u"Redo"_s)->isEnabled()); // under way
        QTRY_COMPARE(shown.text(0, TrackField::FileName), u"x.mp3"_s);
        QCOMPARE(Trees::names(folder.path().toUtf8()).join('|'), "x.mp3|y.flac");
        QTRY_VERIFY(shown.action(u"Redo"_s)->isEnabled());
        shown.action(u"Redo"_s)->trigger();
        QTRY_COMPARE(shown.text(0, TrackField::FileName), after);
        QCOMPARE(Trees::names(folder.path().toUtf8()).join('|'), renamed);
        QTRY_VERIFY(shown.action(u"Undo"_s)->isEnabled());
        QVERIFY(!shown.action(u"Put Files"_s)->isEnabled());
        QVERIFY(shown.open(folder.path())); // which forgets the steps
        QVERIFY(shown.action(u"Put Files"_s)->isEnabled());
        shown.action(u"Put Files"_s)->trigger();
        QTRY_COMPARE(Trees::names(folder.path().toUtf8()).join('|'), "x.mp3|y.flac");
        QTRY_VERIFY(!shown.action(u"Put Files"_s)->isEnabled());
        QVERIFY(!shown.window.isWindowModified());
    }

    /// A question in the midst of a batch may stand for long.
    void ownRenamesAreNotTakenForForeignChanges()
    {
        const QTemporaryDir folder;
        for (const QString &name : {u"x.flac"_s, u"y.mp3"_s})
            QVERIFY(Samples::copy(name.endsWith(u'c') ? u"Maree/05 Fenetre.flac"_s : u"Maree/04 Ete.mp3"_s,
                                  folder.filePath(name)));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        QVERIFY(Samples::copy(u"Maree/04 Ete.mp3"_s, folder.filePath(u"same.mp3"_s)));
        ZEVAlert::setRunner([](ZEVAlert &) {
            QTest::qWait(1200); // as long as it takes to notice what other programs do, and more
            return 1000;
        });
        const auto reset = qScopeGuard([] { ZEVAlert::setRunner({}); });
        QSignalSpy reported(shown.window.findChild<FileActions *>(), &FileActions::reported);
        shown.window.table().selectAll();
        shown.action(u"Rename"_s)->trigger();
        auto *dialog = shown.window.findChild<RenameDialog *>();
        dialog->findChild<QLineEdit *>()->setText(u"same"_s);
        QTest::keyClick(dialog, Qt::Key_Return);
        QTRY_VERIFY(!reported.isEmpty());
        QTRY_COMPARE(shown.text(0, TrackField::FileName), u"same.flac"_s);
        QTest::qWait(800);
        QVERIFY2(!shown.status().contains(u"not there") && !shown.status().contains(u"another program"),
                 qPrintable(shown.status()));
        QCOMPARE(shown.window.tracks().numberOfUnreadable(), 0);
    }

    void whatIsTrashedHasNoRowUntilItComesBack()
    {
        const QTemporaryDir folder;
        for (const QString &name : {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s})
            QVERIFY(Samples::copy(u"Maree/04 Ete.mp3"_s, folder.filePath(name)));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        const auto names = [&] {
            QString rows;
            for (int row = 0; row < shown.window.tracks().rowCount(); ++row)
                rows += shown.text(row, TrackField::FileName).left(1);
            return rows + u'|' + QDir(folder.path()).entryList(QDir::Files).join(QString()).remove(u".mp3"_s);
        };
        shown.select(1, TrackField::Title);
        const std::unique_ptr<QMenu> menu(shown.window.findChild<TrackMenus *>()->makeContextMenu());
        QVERIFY(menu->actions().contains(shown.action(u"Move to Trash"_s)));
        for (int round = 0; round < 2; ++round) {
            shown.action(round == 0 ? u"Move to Trash"_s : u"Redo"_s)->trigger();
            QTRY_COMPARE(names(), u"ac|ac"_s);
            QTRY_VERIFY(shown.action(u"Undo"_s)->isEnabled());
            shown.action(u"Undo"_s)->trigger();
            QTRY_COMPARE(names(), u"acb|abc"_s);
            QTRY_VERIFY(shown.action(u"Redo"_s)->isEnabled());
        }
        QVERIFY(QDir(m_home.path() + u"/Trash/info"_s).entryList({u"b.mp3*"_s}, QDir::Files).isEmpty());
        QCOMPARE(shown.status().section(u'|', 0, 0), u"3 tracks"_s);
    }

    void filesThatExchangeTheirNamesLoseNone()
    {
        Batches files;
        for (const char *name : {"a", "b", "c", "d"})
            QVERIFY(Trees::write(files.path(name), name));
        QVERIFY(files.run({{"a", "b"}, {"b", "a"}, {"c", "d"}, {"d", "e"}}));
        QCOMPARE(files.contents(), "a=b b=a d=c e=d");
        QVERIFY(files.result.errors.isEmpty());
        QVERIFY(files.undo());
        QCOMPARE(files.contents(), "a=a b=b c=c d=d");
    }

    void foldersAreMadeAndGoAgain()
    {
        Batches files;
        QVERIFY(Trees::write(files.path("a"), "a"));
        QVERIFY(Trees::write(files.path("b"), "b"));
        QVERIFY(files.run({{"a", "x/y/a"}, {"b", "x/z/b"}}));
        QCOMPARE(Trees::read(files.path("x/y/a")) + Trees::read(files.path("x/z/b")), "ab");
        QVERIFY(Trees::write(files.path("x/z/other"), "other"));
        QVERIFY(files.undo());
        QCOMPARE(Trees::names(files.path("").chopped(1)).join('|'), "a|b|x");
        QCOMPARE(Trees::names(files.path("x")).join('|') + '|' + Trees::names(files.path("x/z")).join('|'),
                 "z|other");
    }

    void conflictsAreAskedAboutAndUndone()
    {
        const std::tuple<int, bool, QByteArray> rows[] = {
            {0, false, "b=old b 2.=new"},      {1, false, "b=new"},
            {2, false, "a=new b=old"},         {3, false, "a=new b=old"},
            {0, true, "a=new b=old b 2.=new"}, {1, true, "a=new b=new"},
        };
        for (const auto &[button, isCopy, expected] : rows) {
            const Answer answer(button);
            Batches files;
            QVERIFY(Trees::write(files.path("a"), "new"));
            QVERIFY(Trees::write(files.path("b"), "old"));
            QVERIFY(files.run({{"a", "b"}}, isCopy));
            COMPARE_ROW(button, files.contents(), expected);
            COMPARE_ROW(button, files.result.isStopped, button == 3);
            COMPARE_ROW(button, files.result.skipped, button == 2 ? 1 : 0);
            const FileJournal reopened(files.folder.filePath(u"journal"_s));
            COMPARE_ROW(button, reopened.changes().size(), button < 2 ? 1 : 0);
            QVERIFY(files.undo());
            QVERIFY(files.journal.isEmpty());
            COMPARE_ROW(button, files.contents(), QByteArray("a=new b=old"));
            QCOMPARE(QDir(m_home.path() + u"/Trash/info"_s).entryList({u"b*"_s}, QDir::Files).size(),
                     QDir(m_home.path() + u"/Trash/files"_s).entryList({u"b*"_s}, QDir::Files).size());
        }
    }

    void whatCannotBeTakenBackStaysInTheJournal()
    {
        Batches files;
        QVERIFY(Trees::write(files.path("a"), "a"));
        QVERIFY(files.run({{"a", "b"}}));
        QVERIFY(Trees::write(files.path("a"), "another"));
        QVERIFY(files.undo());
        QCOMPARE(files.contents(), "a=another b=a");
        QCOMPARE(files.result.errors.size(), 1);
        QFile(files.folder.filePath(u"journal"_s)).open(QFile::Append); // as a crash leaves it
        QVERIFY(QFile::remove(QString::fromUtf8(files.path("a"))));
        QVERIFY(files.undo());
        QCOMPARE(files.contents(), "a=a");
    }

    void aCancelledCopyLeavesNothing()
    {
        Batches files;
        QVERIFY(Trees::write(files.path("a"), "a"));
        QVERIFY(Trees::write(files.path("b"), QByteArray(64 << 20, 'x')));
        connect(&files.batch, &FileBatch::progressed, &files.batch, [&](double, const QString &name) {
            if (name == u"b")
                files.batch.cancel();
        });
        QVERIFY(files.run({{"a", "c"}, {"b", "d"}}, true));
        QVERIFY(files.result.isStopped);
        QVERIFY(files.result.errors.isEmpty());
        QCOMPARE(Trees::names(files.path("").chopped(1)).join('|'), "a|b|c");
    }

    void theTableFollowsAFileToItsFolder()
    {
        const QTemporaryDir folder, target;
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, folder.filePath(u"a.ogg"_s)));
        Shown shown;
        QVERIFY(shown.visible);
        QVERIFY(shown.open(folder.path()));
        shown.select(0, TrackField::Title);
        ZEVOpenPanel::setRunner([&](ZEVOpenPanel &panel) {
            panel.URL = Trees::url(target.path());
            return ZEVOpenPanel::OKResponse;
        });
        shown.action(u"Copy to"_s)->trigger();
        QTRY_VERIFY(QFile::exists(target.filePath(u"a.ogg"_s)) && shown.action(u"Move to"_s)->isEnabled());
        QCOMPARE(shown.window.tracks().track(0).path.native(), folder.filePath(u"a.ogg"_s).toStdString());
        const Answer replace(1);
        shown.action(u"Move to"_s)->trigger();
        QTRY_COMPARE(shown.window.tracks().track(0).path.native(), target.filePath(u"a.ogg"_s).toStdString());
        ZEVOpenPanel::setRunner({});
        QVERIFY(!QFile::exists(folder.filePath(u"a.ogg"_s)));
        QVERIFY(QFile::exists(target.filePath(u"a.ogg"_s)));
    }
};

QTEST_MAIN(tst_FileActions)
#include "tst_FileActions.moc"
