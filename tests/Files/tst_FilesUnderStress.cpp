// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Trees.h"

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>
#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <QSet>
#include <QTest>

#include <csignal>
#include <random>
#include <sys/mount.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

/// Runs \a work in a process of its own, which ends without taking down what it shares with this one.
pid_t inProcess(const std::function<bool()> &work)
{
    const pid_t process = fork();
    if (process == 0)
        _exit(work() ? 0 : 1);
    return process;
}

bool hasSucceeded(pid_t process)
{
    int status = 0;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// As programs save: a new file, one in the place of the old, or over its bytes. Whether the file has them, and
/// is still there a moment later: what is written to a file that somebody has removed is nowhere.
bool save(const QByteArray &path, const QByteArray &text, unsigned way)
{
    const QByteArray beside =
        path.first(path.lastIndexOf('/') + 1) + "~" + path.sliced(path.lastIndexOf('/') + 1);
    if (way < 2)
        return Trees::write(beside, text) && rename(beside.constData(), path.constData()) == 0;
    const int file = open(path.constData(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool isWritten = pwrite(file, text.constData(), size_t(text.size()), 0) == text.size();
    usleep(5000);
    struct stat status { };
    const bool isThere = fstat(file, &status) == 0 && status.st_nlink > 0;
    return close(file) == 0 && isWritten && isThere;
}

/// A small volume of its own; without the right to mount one there is none.
struct SmallVolume {
    SmallVolume()
        : isMounted(mount("none", qPrintable(folder.path()), "tmpfs", 0, "size=256k") == 0)
    {
    }
    ~SmallVolume()
    {
        if (isMounted)
            umount(qPrintable(folder.path()));
    }

    QTemporaryDir folder;
    bool isMounted;
};

} // namespace

class tst_FilesUnderStress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eightProcessesShareAFolder()
    {
        constexpr int Processes = 8, Names = 1000;
        const QTemporaryDir folder;
        const QByteArray root = folder.path().toUtf8() + '/';
        const auto work = [&](int process) {
            ZEVFileManager manager;
            manager.setFileExistsRecovery(ZEVFileExistsRecoveryKeepBoth);
            bool isDone = true;
            for (int n = 0; n < Names; ++n) {
                const QByteArray contents = QByteArray::number(process) + '/' + QByteArray::number(n);
                const QUrl wanted = ZEVFileURL::withPath(root + "shared/" + QByteArray::number(n) + ".jpg");
                const QByteArray own = root + "own" + QByteArray::number(process);
                isDone = isDone
                    && (process % 2 == 0 ? ZEVDataUniqueFileWriting::writeToURLSansOverwrite(contents, wanted)
                                         : Trees::write(own, contents)
                                && manager.moveItemAtURL(ZEVFileURL::withPath(own), wanted));
            }
            return isDone;
        };
        QVERIFY(QDir(folder.path()).mkdir(u"shared"_s));
        QList<pid_t> processes;
        for (int process = 0; process < Processes; ++process)
            processes.append(inProcess([&, process] { return work(process); }));
        for (const pid_t process : processes)
            QVERIFY(hasSucceeded(process));
        QSet<QByteArray> found;
        for (int n = 0; n < Names; ++n) {
            const QByteArray name = root + "shared/" + QByteArray::number(n);
            found.insert(Trees::read(name + ".jpg"));
            for (int number = 2; number <= Processes; ++number) // every number once
                found.insert(Trees::read(name + ' ' + QByteArray::number(number) + ".jpg"));
        }
        QCOMPARE(found.size(), Processes * Names);
        QVERIFY(!found.contains("(none)"));
        QCOMPARE(Trees::names(root + "shared").size(), Processes * Names);
    }

    /// Whenever a process dies, the destination is whole: the old one or the new one.
    void aKilledProcessLeavesTheOldOrTheNew()
    {
        constexpr int Rounds = 500;
        const QTemporaryDir folder(u"/dev/shm/zev-XXXXXX"_s);
        const QByteArray root = folder.path().toUtf8() + '/', old(1 << 20, 'o'), fresh(1 << 20, 'n');
        const auto url = [&](const QByteArray &name) { return ZEVFileURL::withPath(root + name); };
        std::mt19937 random(1);
        int numberOfNew = 0, numberOfOld = 0, leftBehind = 0;
        for (int round = 0; round < Rounds; ++round) {
            QVERIFY(Trees::write(root + "new", fresh));
            QVERIFY(round % 2 || Trees::write(root + "item", old));
            const pid_t process = inProcess([&] {
                auto *manager = ZEVPlainFileManager::defaultManager();
                return round % 2
                    ? manager->copyItemAtURL(url("new"), url("item"))
                    : ZEVFileManagerHelpers::atomicCopyItemAtURL(*manager, url("new"), url("item"));
            });
            usleep(unsigned(random() % 2500));
            kill(process, SIGKILL);
            waitpid(process, nullptr, 0);
            const QByteArray item = Trees::read(root + "item");
            QVERIFY(item == fresh || item == (round % 2 ? QByteArray("(none)") : old));
            QCOMPARE(Trees::read(root + "new"), fresh);
            ++(item == fresh ? numberOfNew : numberOfOld);
            QByteArrayList others = Trees::names(root);
            others.removeIf([](const QByteArray &name) { return name == "new" || name == "item"; });
            QVERIFY(others.isEmpty() || (others.size() == 1 && others.first().startsWith(".zev-")));
            leftBehind += int(others.size());
            for (const QByteArray &name : others + QByteArrayList{"item"})
                std::filesystem::remove_all((root + name).toStdString());
        }
        QVERIFY2(numberOfNew > 20 && numberOfOld > 20 && leftBehind > 20,
                 qPrintable(u"%1 %2 %3"_s.arg(numberOfNew).arg(numberOfOld).arg(leftBehind)));
    }

    /// Folders go to and fro between two volumes while two programs save files in them. For ZEV_WRITERS_SECONDS.
    void twoWritersLoseNoByte()
    {
        constexpr int Names = 12;
        const int seconds = qEnvironmentVariableIsSet("ZEV_WRITERS_SECONDS")
            ? qEnvironmentVariableIntValue("ZEV_WRITERS_SECONDS")
            : 10;
        const QTemporaryDir here, there(u"/dev/shm/zev-XXXXXX"_s), books;
        const QByteArrayList volumes{here.path().toUtf8() + '/', there.path().toUtf8() + '/'};
        const auto albums = [&] {
            QByteArrayList paths;
            for (const QByteArray &volume : volumes) {
                for (const QByteArray &name : Trees::names(volume)) {
                    if (name.startsWith("album"))
                        paths.append(volume + name);
                }
            }
            return paths;
        };
        const auto end = time(nullptr) + seconds;
        const auto write = [&](int writer) {
            std::mt19937 random{unsigned(writer)};
            qint64 saved = 0;
            QByteArray book;
            for (qint64 version = 1; time(nullptr) < end; ++version) {
                const QByteArrayList paths = albums();
                const QByteArray name =
                    QByteArray::number(writer) + '-' + QByteArray::number(random() % Names);
                const QByteArray text = QByteArray::number(version).rightJustified(10, '0');
                if (paths.isEmpty()
                    || !save(paths.at(random() % size_t(paths.size())) + '/' + name, text,
                             unsigned(random() % 3)))
                    continue;
                ++saved;
                book += name + ' ' + text + '\n';
            }
            return Trees::write(books.path().toUtf8() + '/' + QByteArray::number(writer), book)
                && saved > 100;
        };
        QVERIFY(QDir(here.path()).mkdir(u"album"_s));
        const pid_t writers[]{inProcess([&] { return write(1); }), inProcess([&] { return write(2); })};
        int moved = 0, refused = 0, number = 0;
        ZEVFileManager manager;
        std::mt19937 random{7};
        while (time(nullptr) < end) {
            for (const QByteArray &path : albums()) {
                const QByteArray &volume = volumes.at(path.startsWith(volumes.first()) ? 1 : 0);
                const QByteArray to = volume + "album" + QByteArray::number(++number);
                const bool copies = albums().size() < 3 && random() % 20 == 0;
                const bool isDone = copies
                    ? manager.copyItemAtURL(ZEVFileURL::withPath(path), ZEVFileURL::withPath(to))
                    : manager.moveItemAtURL(ZEVFileURL::withPath(path), ZEVFileURL::withPath(to));
                ++(isDone ? moved : refused);
            }
        }
        for (const pid_t writer : writers)
            QVERIFY(hasSucceeded(writer));
        QMap<QByteArray, QByteArray> wanted, found;
        for (const char *writer : {"/1", "/2"}) {
            for (const QByteArray &line : Trees::read(books.path().toUtf8() + writer).split('\n')) {
                if (!line.isEmpty())
                    wanted.insert(line.split(' ').first(), line.split(' ').last());
            }
        }
        for (const QByteArray &path : albums()) {
            for (const QByteArray &name : Trees::names(path)) {
                QByteArray &latest = found[name];
                latest = std::max(latest, Trees::read(path + '/' + name));
            }
        }
        qInfo("%d moved or copied, %d refused, %d names", moved, refused, int(wanted.size()));
        for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
            QVERIFY2(found.value(it.key()) >= it.value(),
                     it.key() + ' ' + it.value() + ' ' + found.value(it.key()));
        QVERIFY(moved > 0); // how often depends on how busy the machine is
        QVERIFY(moved + refused > 5);
    }

    void aFullVolumeFailsClean()
    {
        const SmallVolume volume;
        if (!volume.isMounted)
            QSKIP("No right to mount a volume");
        const QTemporaryDir elsewhere;
        const QByteArray here = volume.folder.path().toUtf8() + '/', there = elsewhere.path().toUtf8() + '/';
        const auto url = [](const QByteArray &path) { return ZEVFileURL::withPath(path); };
        QVERIFY(QDir().mkpath(QString::fromUtf8(there + "folder")));
        QVERIFY(Trees::write(there + "folder/large", QByteArray(1 << 20, 'x')));
        QVERIFY(Trees::write(here + "item", "old"));
        ZEVFileManager manager;
        manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        for (const QByteArray &source : {there + "folder/large", there + "folder"}) {
            const Trees::Contents before = Trees::contents(source);
            for (const char *name : {"new", "item"}) {
                ZEVError error;
                QVERIFY(!manager.copyItemAtURL(url(source), url(here + name), &error));
                QVERIFY(!manager.moveItemAtURL(url(source), url(here + name), &error));
                QVERIFY(!ZEVDataUniqueFileWriting::writeToURLSansOverwrite(
                    QByteArray(1 << 20, 'x'), url(here + name), nullptr, &error));
                QCOMPARE(ZEVFileErrors::posixCode(error), ENOSPC);
            }
            QCOMPARE(Trees::contents(source), before);
        }
        QCOMPARE(Trees::names(here).join('|'), "item");
        QCOMPARE(Trees::read(here + "item"), "old");
    }
};

QTEST_GUILESS_MAIN(tst_FilesUnderStress)
#include "tst_FilesUnderStress.moc"
