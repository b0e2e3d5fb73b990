// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "../SystemFaults.h"
#include "../Trees.h"

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <QLoggingCategory>

#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

using Manager = ZEVPlainFileManager;
using Operation = std::function<bool(const QUrl &, const QUrl &, ZEVError *)>;

const Operation Copy = [](auto &&...given) { return Manager::defaultManager()->copyItemAtURL(given...); };
const Operation Move = [](auto &&...given) { return Manager::defaultManager()->moveItemAtURL(given...); };
const Operation Replace = [](const QUrl &source, const QUrl &destination, ZEVError *error) {
    return Manager::defaultManager()->replaceItemAtURL(destination, source, nullptr, error);
};

/// A source and a destination, each in a folder of its own.
struct Pair {
    explicit Pair(bool isFolder = false, const QByteArray &old = {}, const QString &sourceFolder = {},
                  const QString &folders = QDir::tempPath() + u"/zev-XXXXXX"_s)
        : folder(folders)
        , source((sourceFolder.isEmpty() ? folder.path() : sourceFolder).toUtf8() + "/from/item")
        , destination(folder.path().toUtf8() + "/to/item")
    {
        for (const QByteArray &path : {source, destination})
            QDir().mkpath(QString::fromUtf8(path.chopped(5)));
        if (isFolder)
            Trees::makeHard(source);
        else
            Trees::write(source, "new");
        if (isFolder && !old.isEmpty())
            QDir().mkpath(QString::fromUtf8(destination));
        if (!old.isEmpty())
            Trees::write(isFolder ? destination + "/old" : destination, old);
        sourceBefore = Trees::contents(source);
        destinationBefore = Trees::contents(destination);
    }
    ~Pair()
    {
        for (const QByteArray &path : {source, destination})
            std::filesystem::remove_all(path.chopped(5).toStdString());
    }

    bool run(const Operation &operation, ZEVError *error = nullptr) const
    {
        return operation(ZEVFileURL::withPath(source), ZEVFileURL::withPath(destination), error);
    }
    bool isAsBefore() const
    {
        return Trees::contents(source) == sourceBefore && Trees::contents(destination) == destinationBefore
            && hasNoTemporaries();
    }
    bool isDone(bool keepsSource) const
    {
        return Trees::contents(destination) == sourceBefore && hasNoTemporaries()
            && (keepsSource ? Trees::contents(source) == sourceBefore
                            : !QFile::exists(QString::fromUtf8(source)));
    }
    /// A folder of which nothing can be removed any more when half of it has gone. The destination has all of
    /// the new one by then; what is left of a replaced one does not keep the source's name.
    bool isPartlyRemoved(bool wasReplaced) const
    {
        return Trees::contents(destination) == sourceBefore
            && (!wasReplaced || !QFile::exists(QString::fromUtf8(source)));
    }
    bool hasNoTemporaries() const
    {
        return (Trees::names(destination.chopped(5)) + Trees::names(source.chopped(5)))
                   .join('/')
                   .indexOf(".zev-")
            < 0;
    }

    QTemporaryDir folder;
    QByteArray source, destination;
    Trees::Contents sourceBefore, destinationBefore;
};

qint64 codeOf(const Pair &pair, const Operation &operation)
{
    ZEVError error;
    return pair.run(operation, &error) ? 0 : error.code();
}

} // namespace

class tst_ZEVPlainFileManager : public QObject {
    Q_OBJECT

private:
    Trees::OtherVolume m_other;

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(u"zev.*=false"_s); }

    void namesAreBytes()
    {
        const QByteArray rows[] = {"/a",
                                   "/a b",
                                   "/\xFF\xC3",
                                   "/100%41",
                                   "/%FF",
                                   "/a?b#c;d",
                                   "/new\nline",
                                   "/-rf",
                                   "/\xE2\x80\xAE",
                                   "/~",
                                   "/e\xCC\x81/\xC3\xA9",
                                   "/"};
        for (const QByteArray &path : rows)
            COMPARE_ROW(path, ZEVFileURL::path(ZEVFileURL::withPath(path)), path);
        QCOMPARE(ZEVFileURL::path(QUrl(u"file:////a//b/"_s)), "/a/b");
        for (const QString &foreign : {u"file://host/a"_s, u"http://a/b"_s, u"file:a"_s, u"file:///a%00b"_s})
            COMPARE_ROW(foreign, ZEVFileURL::path(QUrl(foreign)), QByteArray());
        QCOMPARE(ZEVFileURL::displayName(ZEVFileURL::withPath("/a/AC:DC\xFF")), u"AC/DC\uFFFD"_s);
    }

    void namesAreNumberedWithin255Bytes()
    {
        using Dot = ZEVFileName::Dot;
        const std::tuple<QByteArray, Dot, QByteArray> rows[] = {
            {"Song.mp3", Dot::BeforeAnyExtension, "Song 12.mp3"},
            {"Name", Dot::BeforeAnyExtension, "Name 12."},
            {"Name", Dot::BeforeExtensionOnly, "Name 12"},
            {"Vol. 2", Dot::BeforeExtensionOnly, "Vol. 2 12"},
            {"No.\u00A0x", Dot::BeforeExtensionOnly, "No.\u00A0x 12"},
            {".hidden", Dot::BeforeExtensionOnly, ".hidden 12"},
            {"a.tar.gz", Dot::BeforeExtensionOnly, "a.tar 12.gz"},
            {QByteArray(248, 'a') + "\u00E9.mp3", Dot::BeforeExtensionOnly, QByteArray(248, 'a') + " 12.mp3"},
            {QByteArray(240, 'a') + "\u00E9\u00E9\u00E9.mp3", Dot::BeforeExtensionOnly,
             QByteArray(240, 'a') + "\u00E9\u00E9\u00E9 12.mp3"},
        };
        for (const auto &[name, dot, numbered] : rows)
            COMPARE_ROW(name, ZEVFileName(name).numbered(12, dot), numbered);
        QCOMPARE(ZEVFileName(QByteArray(256, 'a')).fitting(), QByteArray(255, 'a'));
        QCOMPARE(ZEVFileName(QByteArray(255, '\xBF')).numbered(2, Dot::BeforeExtensionOnly).size(), 252);
    }

    void allOfAnItemIsKept()
    {
        for (const bool isFolder : {false, true}) {
            const Pair copied(isFolder), moved(isFolder), replaced(isFolder, "old");
            const Pair across(isFolder, {}, m_other.folder.path());
            QVERIFY(copied.run(Copy));
            QVERIFY(copied.isDone(true));
            struct stat status { };
            stat((copied.destination + "/sparse").constData(), &status);
            QVERIFY(!isFolder || status.st_blocks < 64); // the hole is one
            QVERIFY(moved.run(Move));
            QVERIFY(moved.isDone(false));
            QVERIFY(replaced.run(Replace));
            QVERIFY(replaced.isDone(false));
            QVERIFY(m_other.isOther());
            QVERIFY(across.run(Move));
            QVERIFY(across.isDone(false));
        }
    }

    void failuresAreClassified()
    {
        const auto code = [](const QByteArray &from, const QByteArray &to, const Operation &operation) {
            const Pair pair(true, "old");
            const QByteArray root = pair.folder.path().toUtf8();
            ZEVError error;
            const bool done =
                operation(ZEVFileURL::withPath(root + from), ZEVFileURL::withPath(root + to), &error);
            return done || !pair.isAsBefore() ? -1 : error.code();
        };
        const std::tuple<QByteArray, QByteArray, qint64> rows[] = {
            {"/from/item", "/to/item", 516},
            {"/from/item", "/from/item", 516},
            {"/from/item", "/from/item/inner/new", 512},
            {"/from/item/dangling", "/to/item/old", 516},
            {"/from/none", "/to/new", 4},
            {"/from/item", "/to/none/new", 4},
            {"/from/item", "/from/item/plain/new", 512},
            {"/from/item", "/to/" + QByteArray(256, 'x'), 512},
            {"/from/item", "/to/..", 512},
        };
        for (const auto &[from, to, expected] : rows) {
            COMPARE_ROW(from + " " + to, code(from, to, Copy), expected);
            COMPARE_ROW(from + " " + to, code(from, to, Move), expected);
        }
    }

    void errorsTellWhatFailed()
    {
        const Pair pair(false, "old");
        const QUrl source = ZEVFileURL::withPath(pair.source),
                   destination = ZEVFileURL::withPath(pair.destination);
        for (const auto &[operation, variant] : {std::pair(Copy, u"Copy"_s), std::pair(Move, u"Move"_s)}) {
            ZEVError error;
            QVERIFY(!pair.run(operation, &error));
            QCOMPARE(error.domain(), u"NSCocoaErrorDomain"_s);
            QCOMPARE(error.userInfo().value(u"NSUserStringVariant"_s).toStringList(), QStringList{variant});
            QCOMPARE(error.userInfo().value(u"NSFilePath"_s).toString(), QString::fromUtf8(pair.destination));
            QCOMPARE(error.userInfo().value(u"NSURL"_s).toUrl(), destination);
            QCOMPARE(error.userInfo().value(u"NSSourceURL"_s).toUrl(), source);
            QCOMPARE(error.underlyingError(), ZEVError(u"NSPOSIXErrorDomain", EEXIST));
        }
    }

    /// Each of the calls in turn, by each of the errors that a disk, a quota or a right may give.
    void aFailedCallLeavesAllAsItWas()
    {
        const QString here, there = m_other.folder.path();
        // In memory nothing has to be written out.
        const QString memory = u"/dev/shm/zev-XXXXXX"_s, disk = QDir::tempPath() + u"/zev-XXXXXX"_s;
        const std::tuple<const char *, Operation, QByteArray, QString, bool> rows[] = {
            {"copy", Copy, {}, here, true},           {"copy across", Copy, {}, there, true},
            {"move", Move, {}, here, false},          {"move across", Move, {}, there, false},
            {"replace", Replace, "old", here, false},
        };
        for (const auto &[name, operation, old, volume, keepsSource] : rows) {
            for (const bool isFolder : {false, true}) {
                for (const int code : {EIO, ENOSPC, EDQUOT, EACCES, EROFS, EXDEV, ELOOP, ENAMETOOLONG}) {
                    if (volume == there && code != EIO && code != ENOSPC && code != EACCES)
                        continue; // takes long
                    bool wasReached = true;
                    for (int n = 1; wasReached; ++n) {
                        const Pair pair(isFolder, old, volume, volume == here ? memory : disk);
                        bool done = false;
                        {
                            const SystemFaults::Nth fault(n, code);
                            done = pair.run(operation);
                            wasReached = fault.wasReached();
                        }
                        const bool isRight = done ? pair.isDone(keepsSource) : pair.isAsBefore();
                        const bool isExcused = !keepsSource && isFolder && pair.isPartlyRemoved(done);
                        QVERIFY2(isRight || isExcused,
                                 qPrintable(u"%1, folder %2, call %3, error %4: %5"_s.arg(QLatin1String(name))
                                                .arg(isFolder)
                                                .arg(n)
                                                .arg(code)
                                                .arg(done)));
                        QVERIFY(wasReached || done);
                    }
                }
            }
        }
    }

    void fileSystemsThatLackACallAreServed()
    {
        for (const char *call : {"renameat2", "copy_file_range", "linkat", "lseek"}) {
            const SystemFaults::Without without(call);
            for (const bool isFolder : {false, true}) {
                const Pair copied(isFolder), moved(isFolder), replaced(isFolder, "old"),
                    taken(isFolder, "old");
                QVERIFY2(copied.run(Copy) && copied.isDone(true), call);
                QVERIFY2(moved.run(Move) && moved.isDone(false), call);
                QVERIFY2(replaced.run(Replace) && replaced.isDone(false), call);
                COMPARE_ROW(call, codeOf(taken, Move), 516);
                QVERIFY2(taken.isAsBefore(), call);
            }
        }
    }

    /// The copy, then the folder that has its name: only then the source may go.
    void theSourceGoesOnceTheCopyIsWrittenOut()
    {
        for (const bool isFolder : {false, true}) {
            const Pair pair(isFolder, {}, m_other.folder.path());
            SystemFaults::Trace trace;
            QVERIFY(pair.run(Move));
            QStringList order;
            for (const QString &call : QString::fromStdString(trace.calls).split(u' ')) {
                if (call.endsWith(u"sync") || call == u"syncfs" || call == u"renameat2")
                    order += call;
            }
            const QString item = isFolder ? u"syncfs"_s : u"fsync"_s;
            QCOMPARE(order.first(5),
                     (QStringList{u"renameat2"_s, item, u"renameat2"_s, u"fsync"_s, u"renameat2"_s}));
        }
    }

    void whatAVolumeDoesNotKeepIsLeftOut()
    {
        for (const char *call : {"fchmod", "futimens", "fsetxattr", "flistxattr"}) {
            for (const int code : {EPERM, EOPNOTSUPP, ENOSYS}) {
                const Pair pair(true);
                const SystemFaults::Without without(call, code);
                QVERIFY2(pair.run(Copy), call);
                struct stat status { };
                stat((pair.destination + "/plain").constData(), &status);
                // The mode shows the mask of the list; without the list that would be the group's.
                QVERIFY2((status.st_mode & S_IWGRP) == 0 || QByteArray(call) != "fsetxattr", call);
                QVERIFY2(pair.hasNoTemporaries(), call);
            }
        }
    }

    /// One that says it is longer than what can be read of it.
    void whatAFileSaysOfItsSizeIsNotBelieved()
    {
        const Pair pair;
        const QByteArray source = "/sys/devices/system/cpu/online", copy = pair.destination + "2";
        QVERIFY(Copy(ZEVFileURL::withPath(source), ZEVFileURL::withPath(copy), nullptr));
        QCOMPARE(Trees::read(copy), Trees::read(source));
    }

    void leftoversGoWithTheirProcess()
    {
        const pid_t gone = fork();
        if (gone == 0)
            _exit(0);
        waitpid(gone, nullptr, 0);
        const Pair pair;
        const QByteArray folder = pair.destination.chopped(5) + '/';
        const auto made =
            Manager::defaultManager()->itemReplacementDirectory(ZEVFileURL::withPath(folder + "x"));
        QVERIFY(made);
        const QByteArray name = ZEVFileURL::lastPathComponent(*made);
        const auto named = [&](int age, pid_t process, const QByteArray &end) {
            const auto number = [](qint64 value) {
                return QByteArray::number(value, 16).rightJustified(8, '0');
            };
            return name.first(5) + number(name.mid(5, 8).toLongLong(nullptr, 16) - age) + name.mid(13, 8)
                + number(process) + name.mid(29, 8) + end + ".tmp";
        };
        const QByteArray young = named(10, gone, "-young"), living = named(120, getpid(), "-alive"),
                         old = named(120, gone, {}), item = named(120, gone, "-Album.x"),
                         foreign = ".zev-.tmp";
        for (const QByteArray &each : {young, living, old, item, foreign})
            QVERIFY(Trees::write(folder + each, each));
        QVERIFY(pair.run(Copy)); // by whatever is done next in the folder
        QByteArrayList expected{name, young, living, "Album.x", foreign, "item"};
        std::sort(expected.begin(), expected.end());
        QCOMPARE(Trees::names(folder), expected);
        QCOMPARE(Trees::read(folder + "Album.x"), item);
        for (const QByteArray &each : {name, young, living})
            QVERIFY(QDir::match(Manager::temporaryNameFilter(), QString::fromUtf8(each)));
    }

    void anythingReplacesAnything()
    {
        for (const bool isFolder : {false, true}) {
            const Pair pair(isFolder, "old");
            const QByteArray other = pair.destination.chopped(5) + "/other";
            if (isFolder)
                QVERIFY(Trees::write(other, "file"));
            else
                QVERIFY(QDir().mkpath(QString::fromUtf8(other + "/full/of/folders")));
            QVERIFY(Replace(ZEVFileURL::withPath(pair.source), ZEVFileURL::withPath(other), nullptr));
            QCOMPARE(Trees::contents(other), pair.sourceBefore);
        }
        const Pair linked(false, "old");
        const QByteArray link = linked.destination.chopped(5) + "/link";
        std::filesystem::create_symlink("item", link.toStdString());
        QVERIFY(Replace(ZEVFileURL::withPath(linked.source), ZEVFileURL::withPath(link), nullptr));
        QCOMPARE(Trees::contents(link), linked.sourceBefore); // the link, not what it led to
        QCOMPARE(Trees::contents(linked.destination), linked.destinationBefore);
    }

    void replacedByItselfNothingIsLost()
    {
        const Pair pair;
        const QByteArray second = pair.source + '2';
        QVERIFY(Replace(ZEVFileURL::withPath(pair.source), ZEVFileURL::withPath(pair.source), nullptr));
        std::filesystem::create_hard_link(pair.source.toStdString(), second.toStdString());
        QVERIFY(Replace(ZEVFileURL::withPath(pair.source), ZEVFileURL::withPath(second), nullptr));
        QCOMPARE(Trees::names(pair.source.chopped(5)), QByteArrayList{"item2"});
        QCOMPARE(Trees::read(second), "new");
    }

    void aCopyIsPrivateUntilItIsWholeAndCanBeCancelled()
    {
        const Pair pair(true);
        Manager manager;
        qint64 told = 0;
        bool wasPrivate = true;
        manager.setProgressHandler([&](qint64 bytes) {
            for (const QByteArray &name : Trees::names(pair.destination.chopped(5))) {
                struct stat status { };
                lstat((pair.destination.chopped(4) + name).constData(), &status);
                wasPrivate = wasPrivate && name.startsWith(".zev-") && (status.st_mode & 077) == 0;
            }
            told = std::max(told, bytes);
            return bytes < 10;
        });
        ZEVError error;
        QVERIFY(!manager.copyItemAtURL(ZEVFileURL::withPath(pair.source),
                                       ZEVFileURL::withPath(pair.destination), &error));
        QVERIFY(told >= 10);
        QVERIFY(wasPrivate);
        QVERIFY(pair.isAsBefore());
        QCOMPARE(ZEVFileErrors::posixCode(error), ECANCELED);
    }

    void whatInheritsRightsDoesNotKeepThem()
    {
        const Pair pair;
        const char list[] = "\2\0\0\0"
                            "\1\0\7\0\xff\xff\xff\xff"
                            "\2\0\7\0\xd2\4\0\0"
                            "\4\0\5\0\xff\xff\xff\xff"
                            "\x10\0\7\0\xff\xff\xff\xff"
                            "\x20\0\5\0\xff\xff\xff\xff";
        QVERIFY(setxattr(pair.destination.chopped(5).constData(), "system.posix_acl_default", list,
                         sizeof list - 1, 0)
                == 0);
        QVERIFY(pair.run(Copy));
        QVERIFY(pair.isDone(true));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVPlainFileManager)
#include "tst_ZEVPlainFileManager.moc"
