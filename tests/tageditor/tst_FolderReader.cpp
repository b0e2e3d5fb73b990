// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/tracks/FolderReader.h>

#include <QSignalSpy>
#include <QTest>

#include <array>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QStringList names(const QSignalSpy &tracksRead)
{
    QStringList names;
    for (const QVariantList &arguments : tracksRead) {
        for (const Track &track : arguments.at(0).value<QList<Track>>())
            names.append(track.text(TrackField::FileName) + (track.isReadable() ? u""_s : u" !"_s));
    }
    return names;
}

/// What a reading of \a folder says, up to its end.
struct Reading {
    explicit Reading(const QString &folder)
    {
        reader.readFolder(folder);
        done = finished.wait();
    }

    FolderReader reader;
    QSignalSpy tracksRead{&reader, &FolderReader::tracksRead};
    QSignalSpy progressed{&reader, &FolderReader::progressed};
    QSignalSpy skipped{&reader, &FolderReader::folderSkipped};
    QSignalSpy finished{&reader, &FolderReader::finished};
    bool done = false;
};

} // namespace

class tst_FolderReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSampleIsWhole()
    {
        const Reading reading(Samples::folder());
        QVERIFY(reading.done);
        const QStringList read = names(reading.tracksRead);
        QCOMPARE(read.size(), 16);
        QVERIFY2(read.filter(u"!"_s).isEmpty(), qPrintable(read.join(u", ")));
        QCOMPARE(reading.finished.at(0).at(0).toString(), QString());
        QCOMPARE(reading.progressed.first(), (QVariantList{qsizetype(0), qsizetype(0)}));
        QCOMPARE(reading.progressed.last(), (QVariantList{qsizetype(16), qsizetype(16)}));
        QVERIFY(!reading.reader.isReading());
    }

    void theBadAreListedAmongTheGood()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"Track 9/deep"_s));
        const QString good = u"Track 7.m4a"_s;
        QVERIFY(Samples::copy(good, folder.filePath(u"Track 9/deep/x.M4A"_s)));
        QVERIFY(Samples::copy(good, folder.filePath(u"Track 10.m4a"_s)));
        for (const QString &hidden : {u".Trash-1000/files"_s, u".zev-1-2.tmp"_s}) {
            QVERIFY(QDir(folder.path()).mkpath(hidden));
            QVERIFY(Samples::copy(good, folder.filePath(hidden + u"/gone.m4a"_s)));
        }
        QVERIFY(Samples::copy(good, folder.filePath(u"._beside.m4a"_s)));
        QVERIFY(Samples::copy(good, folder.filePath(u"notes.txt"_s)));
        QVERIFY(Samples::copy(good, folder.filePath(u"two\nlines.m4a"_s)));
        QVERIFY(Samples::copy(good, folder.filePath(u"empty.ogg"_s), 0));
        const std::string base = folder.path().toStdString();
        QCOMPARE(::mkfifo((base + "/pipe.mp3").c_str(), 0600), 0);
        QCOMPARE(::symlink(".", (base + "/loop").c_str()), 0);
        QCOMPARE(::symlink("gone.mp3", (base + "/dangling.mp3").c_str()), 0);
        QCOMPARE(::rename((base + "/two\nlines.m4a").c_str(), (base + "/two\nlin\xE9s.m4a").c_str()), 0);

        const Reading reading(folder.path());
        std::filesystem::remove_all(base); // the temporary folder cannot remove a name that is no UTF-8
        QVERIFY(reading.done);
        QCOMPARE(names(reading.tracksRead),
                 (QStringList{u"dangling.mp3 !"_s, u"empty.ogg !"_s, u"pipe.mp3 !"_s, u"x.M4A"_s,
                              u"Track 10.m4a"_s, u"two\nlin\uFFFDs.m4a"_s}));
    }

    void aFolderThatIsNotThereFails()
    {
        const Reading missing(u"/no/such/folder"_s);
        QVERIFY(missing.done);
        QCOMPARE(missing.finished.at(0).at(0).toString(), u"No such file or directory"_s);
        const Reading noFolder(Samples::folder() + u"/Interlude.ogg"_s);
        QVERIFY(noFolder.done);
        QCOMPARE(noFolder.finished.at(0).at(0).toString(), u"Not a directory"_s);
    }

    void aFolderWithinThatCannotBeListedIsSkipped()
    {
        if (::geteuid() == 0)
            QSKIP("The superuser may list everything.");
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"closed"_s));
        QVERIFY(Samples::copy(u"Track 7.m4a"_s, folder.filePath(u"a.m4a"_s)));
        QVERIFY(QFile::setPermissions(folder.filePath(u"closed"_s), {}));
        const Reading reading(folder.path());
        QVERIFY(reading.done);
        QCOMPARE(names(reading.tracksRead), QStringList{u"a.m4a"_s});
        QCOMPARE(reading.skipped.at(0).at(1).toString(), u"Permission denied"_s);
    }

    void nothingComesOfWhatWasCancelled()
    {
        const QTemporaryDir folder;
        for (int n = 0; n < 51; ++n)
            QVERIFY(Samples::copy(u"Track 7.m4a"_s, folder.filePath(u"b%1.m4a"_s.arg(n))));
        FolderReader reader;
        const QSignalSpy tracksRead(&reader, &FolderReader::tracksRead);
        const QSignalSpy progressed(&reader, &FolderReader::progressed);
        QSignalSpy finished(&reader, &FolderReader::finished);

        const int watch = ::inotify_init1(IN_CLOEXEC);
        const std::string first = folder.filePath(u"b0.m4a"_s).toStdString();
        QVERIFY(::inotify_add_watch(watch, first.c_str(), IN_OPEN) >= 0);
        reader.readFolder(folder.path());
        // The first file is opened: the reading is in its middle, and its first report is on the way.
        alignas(inotify_event) std::array<char, 4096> event;
        QVERIFY(::read(watch, event.data(), event.size()) > 0);
        ::close(watch);
        reader.cancel();
        QVERIFY(!reader.isReading());
        reader.readFolder(Samples::folder() + u"/Sever"_s);
        QVERIFY(finished.wait());
        QCOMPARE(finished.size(), 1);
        QCOMPARE(names(tracksRead), (QStringList{u"09 Reka.flac"_s, u"10 Doroga.ogg"_s}));
        for (const QVariantList &arguments : progressed)
            QVERIFY(arguments.at(1).toInt() != 51);
    }

    void itMayBeDestroyedWhileItReads()
    {
        for (int n = 0; n < 20; ++n) {
            FolderReader reader;
            reader.readFolder(Samples::folder());
        }
        QCoreApplication::processEvents(); // whatever was still to be delivered
    }
};

QTEST_GUILESS_MAIN(tst_FolderReader)
#include "tst_FolderReader.moc"
