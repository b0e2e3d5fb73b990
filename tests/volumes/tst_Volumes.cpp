// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Trees.h"

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>
#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <QDirIterator>
#include <QLoggingCategory>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QUrl url(const QByteArray &path) { return ZEVFileURL::withPath(path); }

QByteArrayList volumeNames()
{
    QByteArrayList names;
    for (const QByteArray &volume : qgetenv("ZEV_VOLUMES").split(' '))
        names.append(volume.split('=').first());
    return names;
}

QByteArray folderOf(const QByteArray &name)
{
    for (const QByteArray &volume : qgetenv("ZEV_VOLUMES").split(' ')) {
        if (volume.startsWith(QByteArray(name + '=')))
            return volume.sliced(name.size() + 1);
    }
    return {};
}

bool isRoot() { return geteuid() == 0; }
bool hasModes(const QByteArray &volume)
{
    return volume != "exfat" && volume != "ntfs" && volume != "bindfs";
}

/// What every file system keeps: names, bytes, where links lead, and how many names an item has.
Trees::Contents shape(const QByteArray &root, bool countsNames)
{
    namespace fs = std::filesystem;
    Trees::Contents items;
    const auto add = [&](const fs::path &path) {
        struct stat status { };
        if (lstat(path.c_str(), &status) < 0)
            return;
        const QByteArray name = QByteArray::fromStdString(path.native()).sliced(root.size());
        QByteArray text = QByteArray::number(status.st_mode & S_IFMT, 8);
        if (S_ISLNK(status.st_mode))
            text += QByteArray::fromStdString(fs::read_symlink(path).native());
        if (S_ISREG(status.st_mode))
            text += ' ' + QByteArray::number(qHash(Trees::read(QByteArray::fromStdString(path.native()))))
                + (countsNames ? ' ' + QByteArray::number(qint64(status.st_nlink)) : QByteArray());
        items.insert(name, text);
    };
    const fs::path path = root.toStdString();
    add(path);
    if (fs::is_directory(fs::symlink_status(path))) {
        for (const auto &entry : fs::recursive_directory_iterator(path))
            add(entry.path());
    }
    return items;
}

bool makeItem(const QByteArray &kind, const QByteArray &path)
{
    const QString name = QString::fromUtf8(path);
    if (kind == "file")
        return Trees::write(path, "new");
    if (kind == "sparse")
        return Trees::write(path, "begin") && truncate(path.constData(), Trees::HoleSize) == 0;
    if (kind == "link")
        return symlink("nowhere", path.constData()) == 0;
    if (kind == "nested")
        return QDir().mkpath(name + u"/item/item"_s) && Trees::write(path + "/item/item/file", "deep")
            && Trees::write(path + "/beside", "beside");
    if (!QDir().mkpath(name + u"/inner"_s) || !Trees::write(path + "/inner/file", "new"))
        return false;
    if (kind == "hard links")
        return link((path + "/inner/file").constData(), (path + "/second").constData()) == 0;
    if (kind == "read-only")
        return chmod((path + "/inner/file").constData(), 0444) == 0
            && chmod((path + "/inner").constData(), 0555) == 0 && chmod(path.constData(), 0555) == 0;
    return Trees::write(path + "/Track.mp3", "new");
}

void makeWritable(const QByteArray &folder)
{
    QDirIterator folders(QString::fromUtf8(folder), QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (folders.hasNext())
        chmod(folders.next().toUtf8().constData(), 0755);
    for (QDirIterator again(QString::fromUtf8(folder), QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                            QDirIterator::Subdirectories);
         again.hasNext();)
        chmod(again.next().toUtf8().constData(), 0755);
}

/// "from/item" on one volume and "to" on another or the same one.
struct Ground {
    Ground(const QByteArray &sourceVolume, const QByteArray &destinationVolume)
        : sourceFolder(QString::fromUtf8(folderOf(sourceVolume) + "/from-XXXXXX"))
        , destinationFolder(QString::fromUtf8(folderOf(destinationVolume) + "/to-XXXXXX"))
        , source(sourceFolder.path().toUtf8() + "/item")
        , destination(destinationFolder.path().toUtf8() + "/item")
    {
    }
    ~Ground()
    {
        for (const QTemporaryDir *folder : {&sourceFolder, &destinationFolder})
            makeWritable(folder->path().toUtf8());
    }

    bool hasNothingHidden() const
    {
        for (const QTemporaryDir *folder : {&sourceFolder, &destinationFolder}) {
            for (const QByteArray &name : Trees::names(folder->path().toUtf8())) {
                if (name.startsWith('.'))
                    return false;
            }
        }
        return true;
    }

    QTemporaryDir sourceFolder, destinationFolder;
    QByteArray source, destination;
};

struct Case {
    QByteArray operation, kind, sourceVolume, destinationVolume;

    QByteArray name() const
    {
        return operation + ", " + kind + ": " + sourceVolume + " to " + destinationVolume;
    }
    bool isCopy() const { return operation.startsWith("copy"); }

    /// Where the file systems or the rights leave no other answer.
    bool mayFail() const
    {
        const bool isWithin = sourceVolume == destinationVolume;
        const bool isMoved = !isCopy() && (!isWithin || destinationVolume == "overlay");
        return kind == "read-only" && !isRoot() && !isCopy() && (isMoved || isWithin);
    }
};

} // namespace

class tst_Volumes : public QObject {
    Q_OBJECT

private:
    int m_done = 0;

    static QList<Case> allCases()
    {
        QList<Case> cases;
        for (const char *operation : {"copy", "move", "copy, keep both", "move, keep both", "copy, replace",
                                      "move, replace", "copy, atomic"}) {
            for (const char *kind :
                 {"file", "folder", "link", "hard links", "sparse", "read-only", "nested"}) {
                for (const QByteArray &volume : volumeNames()) {
                    cases.append({operation, kind, volume, volume});
                    if (volume == "tmpfs")
                        continue;
                    cases.append({operation, kind, "tmpfs", volume});
                    cases.append({operation, kind, volume, "tmpfs"});
                }
            }
        }
        return cases;
    }

    static bool perform(const Case &given, const QUrl &source, const QUrl &destination, ZEVError *error)
    {
        ZEVFileManager manager;
        if (given.operation.endsWith("keep both"))
            manager.setFileExistsRecovery(ZEVFileExistsRecoveryKeepBoth);
        if (given.operation.endsWith("replace"))
            manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        if (given.operation.endsWith("atomic"))
            return ZEVFileManagerHelpers::atomicCopyItemAtURL(manager, source, destination, error);
        return given.isCopy() ? manager.copyItemAtURL(source, destination, error)
                              : manager.moveItemAtURL(source, destination, error);
    }

    /// Empty where the promise is kept: the old or the new, whole, and nothing hidden.
    QByteArray problemOf(const Case &given)
    {
        Ground ground(given.sourceVolume, given.destinationVolume);
        if (!makeItem(given.kind, ground.source))
            return {}; // this volume has none
        const bool hasOld = given.operation.contains(", ");
        if (hasOld && !makeItem(given.kind == "link" ? "file" : given.kind, ground.destination))
            return {};
        const bool countsNames = given.kind == "hard links" && given.sourceVolume == given.destinationVolume
            && hasModes(given.sourceVolume);
        const auto before = shape(ground.source, countsNames), old = shape(ground.destination, countsNames);
        ZEVError error;
        const bool isDone = perform(given, url(ground.source), url(ground.destination), &error);
        const bool isBeside = given.operation.endsWith("keep both");
        m_done += isDone;
        const QByteArray placed = ground.destination + (isBeside ? " 2." : "");
        if (!ground.hasNothingHidden())
            return "something is hidden";
        if (!isDone
            && (shape(ground.source, countsNames) != before || shape(ground.destination, countsNames) != old))
            return "failed, and not as before: " + ZEVFileErrors::fullDescription(error).toUtf8();
        if (!isDone)
            return given.mayFail() || (given.kind == "link" && given.destinationVolume == "exfat")
                ? QByteArray()
                : "failed: " + ZEVFileErrors::fullDescription(error).toUtf8();
        if (shape(placed, countsNames) != before)
            return "the new one is not whole";
        if (isBeside && shape(ground.destination, countsNames) != old)
            return "the old one is not whole";
        const auto after = shape(ground.source, countsNames);
        return after == (given.isCopy() ? before : Trees::Contents()) ? "" : "the source is wrong";
    }

private Q_SLOTS:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"zev.*=false"_s);
        if (qgetenv("ZEV_VOLUMES").isEmpty())
            QSKIP("No volumes: see with-volumes");
        const auto user = uid_t(qEnvironmentVariableIntValue("ZEV_VOLUMES_AS"));
        if (user != 0) {
            QVERIFY(setresgid(user, user, 0) == 0);
            QVERIFY(setresuid(user, user, 0) == 0);
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

    void theOldOrTheNewWholeAndNothingHidden()
    {
        QByteArrayList problems;
        int number = 0;
        for (const Case &given : allCases()) {
            ++number;
            if (const QByteArray problem = problemOf(given); !problem.isEmpty())
                problems.append(given.name() + ": " + problem);
        }
        qInfo("%d of %d operations done", m_done, number);
        QVERIFY2(problems.isEmpty(), problems.join('\n').constData());
        QVERIFY(m_done > number * 3 / 4); // a volume may lack links, and a user rights
    }

    void namesThatDifferInCaseOnly()
    {
        for (const QByteArray &volume : volumeNames()) {
            for (const QByteArray &kind : QByteArrayList{"file", "folder"}) {
                const Ground ground(volume, volume);
                QVERIFY(makeItem(kind, ground.source));
                const auto before = shape(ground.source, false);
                const QByteArray folder = ground.sourceFolder.path().toUtf8(), upper = folder + "/ITEM";
                ZEVFileManager manager;
                manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
                QVERIFY2(manager.moveItemAtURL(url(ground.source), url(upper)), volume.constData());
                QCOMPARE(Trees::names(folder), QByteArrayList{"ITEM"});
                QCOMPARE(shape(upper, false), before);
            }
        }
    }

    /// A conflict within is none of the folder's: another name for it would not help.
    void namesThatAVolumeTakesForOne()
    {
        if (folderOf("exfat").isEmpty())
            QSKIP("No exFAT");
        const Ground ground("tmpfs", "exfat");
        QVERIFY(makeItem("folder", ground.source));
        QVERIFY(Trees::write(ground.source + "/track.mp3", "other"));
        ZEVFileManager manager;
        manager.setFileExistsRecovery(ZEVFileExistsRecoveryKeepBoth);
        ZEVError error;
        QVERIFY(!manager.copyItemAtURL(url(ground.source), url(ground.destination), &error));
        QCOMPARE(error.code(), ZEVFileErrors::FileWriteUnknown);
        QVERIFY(error.localizedDescription().contains(u"rack.mp3"));
        QVERIFY(Trees::names(ground.destinationFolder.path().toUtf8()).isEmpty());
    }

    void aVolumeThatCannotBeWritten()
    {
        const QByteArray volume = qgetenv("ZEV_READ_ONLY_VOLUME"), album = volume + "/Album";
        if (volume.isEmpty())
            QSKIP("No read-only volume");
        const auto before = shape(volume, false);
        const auto check = [&](const Case &given, const QByteArray &source, const QByteArray &destination) {
            ZEVError error;
            const auto old = shape(source, false);
            const bool isDone = perform(given, url(source), url(destination), &error);
            QCOMPARE(isDone, given.isCopy() && given.kind == "from it");
            const QString said = ZEVFileErrors::fullDescription(error);
            QVERIFY2(isDone || said.endsWith(u"the volume can only be read."), qPrintable(said));
            QCOMPARE(shape(source, false), old);
            QCOMPARE(shape(volume, false), before);
        };
        for (const char *operation : {"copy", "copy, replace", "move", "move, replace"}) {
            const Ground ground("tmpfs", "tmpfs");
            const bool hasOld = QByteArray(operation).contains(", ");
            QVERIFY(makeItem("folder", ground.source));
            QVERIFY(!hasOld || makeItem("file", ground.destination));
            check({operation, "into it", {}, {}}, ground.source, hasOld ? album : volume + "/new");
            check({operation, "from it", {}, {}}, album, ground.destination);
            QVERIFY(ground.hasNothingHidden());
        }
    }

    void attributesThatAreTooLarge()
    {
        class Lenient : public ZEVPlainFileManagerDelegate {
        public:
            bool shouldProceedWithoutAttributesOfItemAtURL(ZEVPlainFileManager &, const QUrl &) override
            {
                return true;
            }
        };
        if (folderOf("xfs").isEmpty() || folderOf("ext4").isEmpty())
            QSKIP("No XFS or ext4");
        const Ground ground("xfs", "ext4");
        const QByteArray value(8192, 'x');
        QVERIFY(makeItem("file", ground.source));
        QVERIFY(setxattr(ground.source.constData(), "user.zev", value.constData(), size_t(value.size()), 0)
                == 0);
        ZEVFileManager manager;
        ZEVError error;
        QVERIFY(!manager.copyItemAtURL(url(ground.source), url(ground.destination), &error));
        QVERIFY(error.localizedDescription().contains(u"attributes"));
        QVERIFY(Trees::names(ground.destinationFolder.path().toUtf8()).isEmpty());
        Lenient lenient;
        manager.setDelegate(&lenient);
        QVERIFY(manager.copyItemAtURL(url(ground.source), url(ground.destination)));
    }

    void privateFilesStayPrivate()
    {
        for (const QByteArray &volume : volumeNames()) {
            const Ground ground("tmpfs", volume);
            QVERIFY(makeItem("file", ground.source));
            QVERIFY(chmod(ground.source.constData(), 0600) == 0);
            ZEVError error;
            const bool isDone =
                ZEVFileManager().copyItemAtURL(url(ground.source), url(ground.destination), &error);
            struct stat status { };
            const bool isThere = stat(ground.destination.constData(), &status) == 0;
            QVERIFY2(isThere == isDone && (isDone || error.localizedDescription().contains(u"read")),
                     volume.constData());
            if (hasModes(volume))
                QVERIFY2(isDone && (status.st_mode & 0777) == 0600, volume.constData());
        }
    }

    void foldersOfALowerLayer()
    {
        const QByteArray lowered = folderOf("overlay") + "/lowered";
        if (folderOf("overlay").isEmpty() || !isRoot())
            QSKIP("Once is enough, and they are the root's");
        const Ground ground("overlay", "overlay");
        const auto before = shape(lowered + "/inner", false);
        QVERIFY(ZEVFileManager().moveItemAtURL(url(lowered + "/inner"), url(ground.source)));
        QVERIFY(!before.isEmpty());
        QVERIFY(shape(ground.source, false) == before);
        QCOMPARE(Trees::names(lowered), QByteArrayList());
        ZEVFileManager manager;
        manager.setFileExistsRecovery(ZEVFileExistsRecoveryReplace);
        QVERIFY(makeItem("folder", ground.destination));
        ZEVError error;
        QVERIFY2(manager.copyItemAtURL(url(ground.destination), url(lowered), &error),
                 ZEVFileErrors::fullDescription(error).toUtf8().constData());
        QCOMPARE(shape(lowered, false), shape(ground.destination, false));
    }

    void writtenUnderAFreeNameAndLocked()
    {
        for (const QByteArray &volume : volumeNames()) {
            const Ground ground(volume, volume);
            QUrl used;
            for (int n = 0; n < 2; ++n)
                QVERIFY(
                    ZEVDataUniqueFileWriting::writeToURLSansOverwrite("x", url(ground.destination), &used));
            QCOMPARE(used, url(ground.destination + " 2"));
            QVERIFY(ground.hasNothingHidden());
            if (!ZEVURLFileAccess::setLocked(used, true))
                continue;
            QVERIFY2(ZEVURLFileAccess::isLocked(used), volume.constData());
            QVERIFY2(ZEVFileManager().moveItemAtURL(used, url(ground.source)), volume.constData());
            QVERIFY2(!ZEVURLFileAccess::isLocked(url(ground.source)), volume.constData());
        }
    }
};

QTEST_GUILESS_MAIN(tst_Volumes)
#include "tst_Volumes.moc"
