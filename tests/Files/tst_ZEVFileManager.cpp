// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "../Trees.h"

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerDelegate.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Grants access by changing the folder's mode, as often as it is asked.
class Grant : public ZEVFileManagerDelegate {
public:
    bool provideSandboxAccessToURL(ZEVFileManager &, const QUrl &url) override
    {
        asked.append(ZEVFileURL::lastPathComponent(url));
        return grants && chmod(ZEVFileURL::path(url).constData(), 0755) == 0;
    }

    QByteArrayList asked;
    bool grants = true;
};

/// A new folder with "from/Track.mp3" ("new"), "to/Track.mp3" ("old") and a manager.
struct Desk {
    Desk()
    {
        for (const char *name : {"from", "to"})
            QDir(folder.path()).mkdir(QLatin1String(name));
        Trees::write(path("from/Track.mp3"), "new");
        Trees::write(path("to/Track.mp3"), "old");
    }
    ~Desk()
    {
        for (const char *name : {"from", "to"})
            chmod(path(name).constData(), 0755);
        std::filesystem::remove_all(folder.path().toStdString());
    }

    QByteArray path(const QByteArray &name) const { return folder.path().toUtf8() + '/' + name; }
    QUrl url(const QByteArray &name) const { return ZEVFileURL::withPath(path(name)); }
    bool move(const QByteArray &to) { return manager.moveItemAtURL(url("from/Track.mp3"), url(to), &error); }
    bool copy(const QByteArray &to) { return manager.copyItemAtURL(url("from/Track.mp3"), url(to), &error); }
    QByteArray names(const QByteArray &of) const { return Trees::names(path(of)).join('|'); }
    QByteArray read(const QByteArray &name) const { return Trees::read(path(name)); }

    QTemporaryDir folder;
    ZEVFileManager manager;
    ZEVError error;
};

/// Nothing where nobody of this process may.
void setOwner(const QByteArray &path, uid_t owner)
{
    const uid_t user = geteuid();
    if (seteuid(0) == 0 && chown(path.constData(), owner, gid_t(-1)) == 0 && seteuid(user) < 0)
        qFatal("The right cannot be given back");
}

ZEVError conflict(const QString &path)
{
    return ZEVFileErrors::error(EEXIST, ZEVFileErrors::Operation::Copy, Trees::url(u"/x/"_s + path),
                                Trees::url(u"/y/"_s + path));
}

/// Does \a action to the alert that comes next.
void onAlert(const std::function<void(QDialog *)> &action)
{
    QTimer::singleShot(0, qApp,
                       [action] { action(qobject_cast<QDialog *>(QApplication::activeModalWidget())); });
}

} // namespace

class tst_ZEVFileManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Root may do everything. Only the locking of files takes the right back for a while.
    void initTestCase()
    {
        if (geteuid() == 0) {
            QVERIFY(setresgid(65534, 65534, 0) == 0);
            QVERIFY(setresuid(65534, 65534, 0) == 0);
        }
    }

    /// The leak sanitizer looks at the process at its end, which a process without rights refuses.
    void cleanupTestCase()
    {
        if (seteuid(0) == 0) {
            QVERIFY(setresuid(0, 0, 0) == 0);
            QVERIFY(setresgid(0, 0, 0) == 0);
        }
    }

    void aTakenNameIsRecoveredFromAsAsked()
    {
        for (const unsigned recovery : {0U, 1U, 2U, 3U, 4U}) {
            for (const bool copies : {false, true}) {
                Desk desk;
                Trees::write(desk.path("to/Track 2.mp3"), "old 2");
                desk.manager.setFileExistsRecovery(recovery);
                const bool done = copies ? desk.copy("to/Track.mp3") : desk.move("to/Track.mp3");
                COMPARE_ROW(recovery, done, recovery == 2 || recovery == 3);
                COMPARE_ROW(recovery, desk.error.code(), done ? 0 : 516);
                COMPARE_ROW(recovery, desk.read("to/Track.mp3"), QByteArray(recovery == 3 ? "new" : "old"));
                COMPARE_ROW(recovery, desk.read("to/Track 3.mp3"),
                            QByteArray(recovery == 2 ? "new" : "(none)"));
                COMPARE_ROW(recovery, desk.read("to/Track 2.mp3"), QByteArray("old 2"));
                COMPARE_ROW(recovery, desk.names("from"), QByteArray(done && !copies ? "" : "Track.mp3"));
            }
        }
    }

    void theNameThatWasFoundIsTold()
    {
        Desk desk;
        Trees::write(desk.path("to/Notes"), "old");
        const ZEVError error = conflict(u"Notes"_s);
        QUrl used = desk.url("to/Notes");
        QVERIFY(desk.manager.attemptFixingFileExistsError(error, 2, desk.url("from/Track.mp3"), used));
        QCOMPARE(used, desk.url("to/Notes 2."));
        for (int n = 3; n <= 999; ++n)
            Trees::write(desk.path("to/Notes " + QByteArray::number(n) + '.'), "old");
        used = desk.url("to/Notes");
        QVERIFY(!desk.manager.attemptRecoveryFromFileExistsErrorByFindingUniqueNameAtURL(
            error, used, desk.url("from/Track.mp3"), &desk.error));
        QCOMPARE(desk.error.userInfo().value(u"NSURL"_s).toUrl(), desk.url("to/Notes 999."));
        QVERIFY(!QFile::exists(QString::fromUtf8(desk.path("to/Notes 1000."))));
        QCOMPARE(Trees::names(desk.path("to")).size(), 1000);
    }

    void replacingAcrossVolumesLosesNeither()
    {
        const Trees::OtherVolume other;
        QVERIFY(other.isOther());
        Desk desk;
        desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        const QByteArray there = other.folder.path().toUtf8() + "/item";
        QVERIFY(Trees::write(there, "from there"));
        const QUrl source = ZEVFileReference::fileReferenceURL(ZEVFileURL::withPath(there));
        QVERIFY(chmod(qPrintable(other.folder.path()), 0555) == 0);
        desk.manager.setFixPermissions(false);
        QVERIFY(!desk.manager.moveItemAtURL(source, desk.url("to/Track.mp3")));
        QVERIFY(desk.read("to/Track.mp3") == "old");
        QVERIFY(Trees::read(there) == "from there");
        QVERIFY(chmod(qPrintable(other.folder.path()), 0755) == 0);
        QVERIFY(desk.manager.moveItemAtURL(source, desk.url("to/Track.mp3")));
        QCOMPARE(desk.read("to/Track.mp3"), "from there");
        QVERIFY(!QFile::exists(QString::fromUtf8(there)));
        QCOMPARE(desk.names("to"), "Track.mp3");
    }

    void missingFoldersAreMadeWhereAsked()
    {
        Desk desk;
        QVERIFY(!desk.copy("a/b/Track.mp3"));
        QVERIFY(desk.error.code() == 4);
        desk.manager.setCreateMissingDirectories(true);
        desk.manager.setCopyFinderTagsToNewDirectories(true);
        QVERIFY(setxattr(desk.path("from").constData(), "user.xdg.tags", "jazz,live", 9, 0) == 0);
        QVERIFY(desk.copy("a/b/Track.mp3"));
        QVERIFY(desk.copy("to/Other.mp3"));
        QCOMPARE(desk.manager.tagNamesOfItemAtURL(desk.url("a/b")), (QStringList{u"jazz"_s, u"live"_s}));
        QCOMPARE(desk.manager.tagNamesOfItemAtURL(desk.url("to")), QStringList()); // was there before
        QVERIFY(!desk.manager.moveItemAtURL(desk.url("from/none"), desk.url("c/none"), &desk.error));
        QCOMPARE(desk.error.code(), 4); // and came to an end
        QVERIFY(!desk.move("to/Track.mp3/below/file"));
    }

    void foldersMadeForNothingGoAgain()
    {
        Desk desk;
        desk.manager.setCreateMissingDirectories(true);
        QVERIFY(!desk.manager.moveItemAtURL(desk.url("from/none"), desk.url("c/d/none")));
        QCOMPARE(Trees::names(desk.folder.path().toUtf8()), (QByteArrayList{"from", "to"}));
    }

    /// By the names and numbers of folder and item, whatever way leads there.
    void anItemInItsOwnPlaceStays()
    {
        Desk desk;
        desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        std::filesystem::create_hard_link(desk.path("from/Track.mp3").toStdString(),
                                          desk.path("from/second").toStdString());
        std::filesystem::create_directory_symlink("from", desk.path("linked").toStdString());
        for (const char *way : {"from/Track.mp3", "linked/Track.mp3"}) {
            COMPARE_ROW(way, desk.move(way), true);
            QVERIFY(desk.manager.replaceItemAtURL(desk.url(way), desk.url("from/Track.mp3")));
            COMPARE_ROW(way, desk.names("from"), QByteArray("Track.mp3|second"));
        }
    }

    void noItemTakesThePlaceOfAFolderAroundIt()
    {
        Desk desk;
        desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        QVERIFY(QDir(desk.folder.path()).mkpath(u"to/Album/Album"_s));
        QVERIFY(Trees::write(desk.path("to/Album/Album/inner"), "inner"));
        QVERIFY(Trees::write(desk.path("to/Album/outer"), "outer"));
        const auto before = Trees::contents(desk.path("to"));
        for (const bool copies : {false, true}) {
            const QUrl inner = desk.url("to/Album/Album"), outer = desk.url("to/Album");
            COMPARE_ROW(copies,
                        copies ? desk.manager.copyItemAtURL(inner, outer, &desk.error)
                               : desk.manager.moveItemAtURL(inner, outer, &desk.error),
                        false);
            COMPARE_ROW(copies, desk.error.code(), 516);
            QVERIFY(ZEVFileErrors::fullDescription(desk.error).contains(u"whose place it would take"));
            QCOMPARE(Trees::contents(desk.path("to")), before);
        }
    }

    /// Known before anything is removed; and what comes into the source meanwhile is not removed either.
    void aMoveToAnotherVolumeIsWholeOrNotDone()
    {
        using Change = std::function<void(const QByteArray &)>;
        const std::tuple<const char *, Change, Change, const char *> rows[] = {
            {"a read-only folder", [](auto &album) { chmod((album + "/inner").constData(), 0555); }, {}, "b"},
            {"another's in a sticky folder",
             [](auto &album) {
                 chmod(album.chopped(6).constData(), 01777);
                 setOwner(album, 0);
                 setOwner(album.chopped(6), 0);
             },
             {},
             "Album"},
            {"a new file", {}, [](auto &album) { Trees::write(album + "/new", "new"); }, "new"},
            {"saved anew",
             {},
             [](auto &album) {
                 Trees::write(album + "/saved", "s");
                 rename((album + "/saved").constData(), (album + "/a").constData());
             },
             "a"},
            {"overwritten", {}, [](auto &album) { Trees::write(album + "/inner/b", "X"); }, "b"},
        };
        uid_t user = 0, effective = 0, saved = 0;
        getresuid(&user, &effective, &saved);
        for (const auto &[name, before, meanwhile, blamed] : rows) {
            if (saved != 0 && QByteArray(blamed) == "Album")
                continue; // only root gives things to another
            for (const bool replaces : {false, true}) {
                const Trees::OtherVolume other;
                Desk desk;
                const QByteArray album = other.folder.path().toUtf8() + "/Album";
                QVERIFY(QDir().mkpath(QString::fromUtf8(album + "/inner")));
                QVERIFY(Trees::write(album + "/a", "a"));
                QVERIFY(Trees::write(album + "/inner/b", "b"));
                if (before)
                    before(album);
                Trees::Contents expected = Trees::contents(album);
                bool hasChanged = false;
                desk.manager.setProgressHandler([&, change = meanwhile](qint64 bytes) {
                    if (bytes == 2 && change && !std::exchange(hasChanged, true)) {
                        change(album);
                        expected = Trees::contents(album);
                    }
                    return true;
                });
                desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
                const QByteArray destination = replaces ? "to/Track.mp3" : "to/Album";
                COMPARE_ROW(name,
                            desk.manager.moveItemAtURL(ZEVFileURL::withPath(album), desk.url(destination),
                                                       &desk.error),
                            false);
                QVERIFY2(hasChanged == bool(meanwhile), name);
                QVERIFY2(Trees::contents(album) == expected, name);
                COMPARE_ROW(name, desk.names("to"), QByteArray("Track.mp3"));
                COMPARE_ROW(name, desk.read("to/Track.mp3"), QByteArray("old"));
                QVERIFY2(ZEVFileErrors::fullDescription(desk.error).contains(u"“"_s + QLatin1String(blamed)),
                         qPrintable(ZEVFileErrors::fullDescription(desk.error)));
                chmod((album + "/inner").constData(), 0755);
                setOwner(album.chopped(6), geteuid());
                setOwner(album, geteuid());
            }
        }
    }

    void aFileThatIsSavedWhileItIsMovedStays()
    {
        const Trees::OtherVolume other;
        Desk desk;
        const QByteArray track = other.folder.path().toUtf8() + "/Other.mp3";
        QVERIFY(Trees::write(track, "as it was"));
        desk.manager.setProgressHandler([&](qint64) { return Trees::write(track, "as it is saved"); });
        QVERIFY(
            !desk.manager.moveItemAtURL(ZEVFileURL::withPath(track), desk.url("to/Other.mp3"), &desk.error));
        QCOMPARE(Trees::read(track), "as it is saved");
        QCOMPARE(desk.names("to"), "Track.mp3");
    }

    void readOnlyFoldersAreReplacedWithoutATrace()
    {
        for (const bool copies : {false, true}) {
            Desk desk;
            desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
            for (const char *name : {"from/Album", "to/Album"}) {
                QVERIFY(QDir().mkpath(QString::fromUtf8(desk.path(name))));
                QVERIFY(Trees::write(desk.path(name) + "/file", name));
                QVERIFY(chmod(desk.path(name).constData(), 0555) == 0);
            }
            const auto expected = Trees::contents(desk.path("from/Album"));
            const QUrl source = desk.url("from/Album"), destination = desk.url("to/Album");
            COMPARE_ROW(copies,
                        copies ? desk.manager.copyItemAtURL(source, destination)
                               : desk.manager.moveItemAtURL(source, destination),
                        true);
            QCOMPARE(Trees::contents(desk.path("to/Album")), expected);
            COMPARE_ROW(copies, desk.names("to"), QByteArray("Album|Track.mp3"));
            COMPARE_ROW(copies, desk.names("from"), QByteArray(copies ? "Album|Track.mp3" : "Track.mp3"));
            for (const char *name : {"from/Album", "to/Album"})
                chmod(desk.path(name).constData(), 0755);
        }
    }

    void errorsSayWhatIsWrong()
    {
        Desk desk;
        QVERIFY(QDir(desk.folder.path()).mkpath(u"from/Album/deep"_s));
        QVERIFY(QDir(desk.folder.path()).mkdir(u"shut"_s));
        QVERIFY(Trees::write(desk.path("from/Album/deep/secret"), "x"));
        QVERIFY(chmod(desk.path("from/Album/deep/secret").constData(), 0) == 0);
        QVERIFY(chmod(desk.path("shut").constData(), 0555) == 0);
        QVERIFY(mkfifo(desk.path("from/pipe").constData(), 0600) == 0);
        const std::tuple<QByteArray, QByteArray, qint64, QByteArray, QString> rows[] = {
            {"from/Track.mp3", "none/x", 4, "none",
             u"“Track.mp3” could not be copied: the folder “none” does not exist."_s},
            {"from/none", "to/x", 4, "from/none", u"“none” could not be copied: the item does not exist."_s},
            {"from/Track.mp3", "shut/x", 513, "shut",
             u"“Track.mp3” could not be copied: you do not have permission to change the folder “shut”."_s},
            {"from/Album", "to/x", 513, "from/Album/deep/secret",
             u"“Album” could not be copied: you do not have permission to read “secret”."_s},
            {"from/Album", "from/Album/x", 512, "from/Album",
             u"“Album” could not be copied: a folder cannot be put into itself."_s},
            {"from/Track.mp3", "to/Track.mp3/x", 512, "to/Track.mp3",
             u"“Track.mp3” could not be copied: “Track.mp3” is not a folder."_s},
            {"from/Track.mp3", "to/" + QByteArray(256, 'x'), 512, "to/" + QByteArray(256, 'x'),
             u"“Track.mp3” could not be copied: the volume does not allow the name “"_s + QString(256, u'x')
                 + u"”."_s},
        };
        desk.manager.setFixPermissions(false);
        for (const auto &[from, to, code, item, text] : rows) {
            QVERIFY(!desk.manager.copyItemAtURL(desk.url(from), desk.url(to), &desk.error));
            COMPARE_ROW(from + ' ' + to, desk.error.localizedDescription(), text);
            COMPARE_ROW(from + ' ' + to, desk.error.code(), code);
            COMPARE_ROW(from + ' ' + to, ZEVFileErrors::itemURL(desk.error), desk.url(item));
        }
        QVERIFY(!desk.manager.copyItemAtURL(QUrl(u"file:///dev/null"_s), desk.url("to/x"), &desk.error));
        QVERIFY(desk.error.localizedDescription().contains(u"“null” is a socket or a device"));
    }

    void anAnswerThatCannotBeFollowedSaysWhy()
    {
        for (const unsigned recovery : {2U, 3U}) {
            Desk desk;
            desk.manager.setFileExistsRecovery(recovery);
            desk.manager.setFixPermissions(false);
            QVERIFY(chmod(desk.path("to").constData(), 0555) == 0);
            QVERIFY(!desk.copy("to/Track.mp3"));
            COMPARE_ROW(recovery, desk.error.code(), 516);
            COMPARE_ROW(recovery, desk.error.underlyingError().value_or(ZEVError()).code(), 513);
            COMPARE_ROW(recovery, ZEVFileErrors::fullDescription(desk.error).contains(u"the folder “to”"),
                        true);
        }
    }

    void rightsAreGivenWhereAllowed()
    {
        for (const bool fixes : {true, false}) {
            Desk desk;
            desk.manager.setFixPermissions(fixes);
            QVERIFY(chmod(desk.path("from").constData(), 0555) == 0);
            COMPARE_ROW(fixes, desk.move("to/New.mp3"), fixes);
            COMPARE_ROW(fixes, desk.error.code(), fixes ? 0 : 513);
        }
    }

    /// A repair that does not help is not tried again.
    void accessIsAskedForOnce()
    {
        Desk desk;
        const auto grant = std::make_shared<Grant>();
        desk.manager.setSandboxDelegate(grant);
        QVERIFY(chmod(desk.path("from").constData(), 0333) == 0);
        QVERIFY(chmod(desk.path("to").constData(), 0555) == 0);
        QVERIFY(!desk.move("to/New.mp3"));
        QVERIFY(desk.error.code() == 513);
        QCOMPARE(grant->asked, (QByteArrayList{"from", "New.mp3"}));
        QVERIFY(desk.copy("from/New.mp3"));
    }

    void aRepairMayUncoverAnotherFailure()
    {
        Desk desk;
        desk.manager.setFileExistsRecovery(ZEVFileExistsRecoveryKeepBoth);
        QVERIFY(chmod(desk.path("from").constData(), 0555) == 0);
        // First the name is taken, then the plain manager that looks for another has no right to take it
        // away.
        QVERIFY(desk.move("to/Track.mp3"));
        QVERIFY(desk.names("to") == "Track 2.mp3|Track.mp3");
        QVERIFY(desk.names("from").isEmpty());
    }

    void lockedFilesAreUnlockedWhereAllowed()
    {
        const auto privileges = qScopeGuard([] { return seteuid(65534); });
        for (const bool unlocks : {false, true}) {
            Desk desk;
            desk.manager.setUnlockFiles(unlocks);
            if (seteuid(0) < 0 || !ZEVURLFileAccess::setLocked(desk.url("from/Track.mp3"), true))
                QSKIP("No right to lock files");
            COMPARE_ROW(unlocks, desk.move("to/New.mp3"), unlocks);
            COMPARE_ROW(unlocks, desk.error.code(), unlocks ? 0 : 513);
            QVERIFY(!ZEVURLFileAccess::isLocked(desk.url("to/New.mp3")));
            ZEVURLFileAccess::setLocked(desk.url("from/Track.mp3"), false);
            // A link to it has a lock of its own: none.
            QVERIFY(ZEVURLFileAccess::setLocked(desk.url("to/Track.mp3"), true));
            std::filesystem::create_symlink("../to/Track.mp3", desk.path("from/link").toStdString());
            QVERIFY(chmod(desk.path("to").constData(), 0555) == 0);
            QVERIFY(seteuid(65534) == 0);
            desk.manager.setFixPermissions(false);
            QVERIFY(!desk.manager.moveItemAtURL(desk.url("from/link"), desk.url("to/link")));
            QVERIFY(seteuid(0) == 0);
            QVERIFY(ZEVURLFileAccess::isLocked(desk.url("to/Track.mp3")));
            ZEVURLFileAccess::setLocked(desk.url("to/Track.mp3"), false);
        }
    }

    void aPolicyDecidesForEachItem()
    {
        Desk desk;
        QVERIFY(utimes(desk.path("to/Track.mp3").constData(), nullptr) == 0);
        desk.manager.setFileExistsPolicy([](const ZEVError &, const QUrl &source, const QUrl &destination) {
            const auto modified = [](const QUrl &url) { return QFileInfo(url.toLocalFile()).lastModified(); };
            return modified(source) > modified(destination) ? ZEVFileExistsRecoveryReplace
                                                            : ZEVFileExistsRecoverySkip;
        });
        QVERIFY(!desk.move("to/Track.mp3"));
        const timeval later{time(nullptr) + 60, 0}, both[]{later, later};
        QVERIFY(utimes(desk.path("from/Track.mp3").constData(), both) == 0);
        QVERIFY(desk.move("to/Track.mp3"));
        QVERIFY(desk.read("to/Track.mp3") == "new");
    }

    void aFolderSwappedForALinkLeadsNowhere()
    {
        Desk desk;
        QVERIFY(QDir(desk.folder.path()).mkpath(u"tree/inner"_s));
        Trees::write(desk.path("tree/a"), QByteArray(100, 'a'));
        Trees::write(desk.path("tree/inner/b"), "b");
        bool isSwapped = false;
        desk.manager.setProgressHandler([&](qint64) {
            const QByteArrayList names = Trees::names(desk.path("to"));
            const QByteArray copy = desk.path("to/" + names.first());
            if (names.first().startsWith(".zev-") && !std::exchange(isSwapped, true)) {
                std::filesystem::rename(desk.path("to").toStdString(), desk.path("moved").toStdString());
                std::filesystem::create_directory_symlink("from", desk.path("to").toStdString());
            }
            return true;
        });
        QVERIFY(desk.manager.copyItemAtURL(desk.url("tree"), desk.url("to/tree")));
        QVERIFY(isSwapped);
        QVERIFY(desk.names("from") == "Track.mp3");
        QCOMPARE(Trees::contents(desk.path("moved/tree")), Trees::contents(desk.path("tree")));
        std::filesystem::remove(desk.path("to").toStdString());
    }

    void theAlertReadsAsDescribed()
    {
        QStringList texts;
        bool isForAll = true; // which only a batch is offered
        ZEVAlert::setRunner([&](ZEVAlert &alert) {
            texts = alert.buttons + QStringList{alert.messageText, alert.informativeText};
            isForAll = alert.showsSuppressionButton;
            return 1000;
        });
        ZEVFileManager().userRequestedRecoveryForFileExistsError(conflict(u"-rf AC:DC\n<b>.mp3"_s), false);
        QVERIFY(!isForAll);
        ZEVAlert::setRunner({});
        QCOMPARE(texts,
                 (QStringList{u"Keep Both"_s, u"Replace"_s, u"Skip"_s, u"Stop"_s,
                              u"An item named “-rf AC/DC\n<b>.mp3” already exists in this location."_s,
                              u"Do you want to replace it with the one you’re moving?"_s}));
    }

    void theAlertIsAnsweredByKeyboard()
    {
        const std::tuple<const char *, std::function<void(QDialog *)>, unsigned, bool> rows[] = {
            {"Return", [](QDialog *alert) { QTest::keyClick(alert, Qt::Key_Return); }, 2, false},
            {"Space", [](QDialog *alert) { QTest::keyClick(alert->focusWidget(), Qt::Key_Space); }, 2, false},
            {"Escape", [](QDialog *alert) { QTest::keyClick(alert, Qt::Key_Escape); }, 1, false},
            {"closing", [](QDialog *alert) { alert->close(); }, 0, false},
            {"Tab to Replace, for all",
             [](QDialog *alert) {
                 QTest::keyClick(alert->findChild<QCheckBox *>(), Qt::Key_Space);
                 QTest::keyClick(alert, Qt::Key_Tab);
                 QTest::keyClick(alert->focusWidget(), Qt::Key_Space);
             },
             3, true},
        };
        for (const auto &[name, action, recovery, toAll] : rows) {
            ZEVFileManager manager;
            manager.setShowsConflictDetails(true, [](const QUrl &) { return u"3:14"_s; });
            bool isPlain = false, hasDetails = false;
            onAlert([&](QDialog *alert) {
                for (const QLabel *label : alert->findChildren<QLabel *>()) {
                    hasDetails = hasDetails || label->text().contains(u"3:14");
                    isPlain =
                        isPlain || (label->textFormat() == Qt::PlainText && label->text().contains(u"<b>"));
                }
                action(alert);
            });
            COMPARE_ROW(name,
                        unsigned(manager.userRequestedRecoveryForFileExistsError(conflict(u"<b>"_s), true)),
                        recovery);
            QVERIFY(isPlain);
            QVERIFY(hasDetails);
            COMPARE_ROW(name, manager.appliedToAllRecovery(), toAll ? recovery : 0U);
        }
    }

    void fourWorkersAskThroughTheMainThread()
    {
        constexpr int Conflicts = 1000;
        ZEVFileManager manager;
        int asked = 0, nested = 0, depth = 0;
        ZEVAlert::setRunner([&](ZEVAlert &alert) {
            nested += ++depth > 1;
            QTest::qWait(1); // in which other questions may come
            --depth;
            alert.isSuppressed = ++asked == 10;
            return alert.isSuppressed ? 1001 : 1002;
        });
        std::atomic<int> skipped = 0, replaced = 0, left = 4;
        const auto work = [&] {
            for (int n = 0; n < Conflicts / 4; ++n) {
                const auto answer = manager.userRequestedRecoveryForFileExistsError(conflict(u"a"_s), true);
                skipped += answer == ZEVFileExistsRecoverySkip;
                replaced += answer == ZEVFileExistsRecoveryReplace;
            }
            --left;
        };
        {
            const std::jthread workers[]{std::jthread(work), std::jthread(work), std::jthread(work),
                                         std::jthread(work)};
            QTRY_COMPARE(left.load(), 0);
        }
        ZEVAlert::setRunner({});
        QVERIFY(nested == 0);
        QVERIFY(asked == 10);
        QVERIFY(skipped == 9);
        QCOMPARE(replaced.load(), Conflicts - 9);
    }

    /// The end of the loop answers those who wait for it, and the answer is no answer for all.
    void quittingAnswersStop()
    {
        ZEVFileManager manager;
        std::atomic<int> stopped = 0;
        const auto work = [&] {
            stopped += manager.userRequestedRecoveryForFileExistsError(conflict(u"a"_s), true)
                == ZEVFileExistsRecoveryNone;
        };
        for (unsigned round = 0; round < 20; ++round) { // the end comes before or while it waits
            std::jthread worker(work);
            QThread::usleep(round * 50);
            QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection);
            worker.join();
            QCoreApplication::processEvents(); // the loop runs again
        }
        std::jthread shown(work);
        std::jthread waiting(work);
        QTimer look;
        connect(&look, &QTimer::timeout, qApp, [] {
            if (QApplication::activeModalWidget()) // of the one or of the other
                QApplication::quit();
        });
        look.start(1);
        QApplication::exec();
        shown.join();
        waiting.join();
        std::jthread(work).join(); // after the end
        QCOMPARE(stopped.load(), 23);
        ZEVAlert::setRunner([&](ZEVAlert &) { return 1000; });
        std::atomic<bool> isAnswered = false;
        const std::jthread again([&] { // by another loop
            while (manager.userRequestedRecoveryForFileExistsError(conflict(u"a"_s), true) == 0) { }
            isAnswered = true;
        });
        QTRY_VERIFY(isAnswered);
        ZEVAlert::setRunner({});
    }
};

QTEST_MAIN(tst_ZEVFileManager)
#include "tst_ZEVFileManager.moc"
