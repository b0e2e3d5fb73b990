// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "../SystemFaults.h"
#include "../Trees.h"

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>
#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVURLCommonAncestor.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <QPainter>

#include <pwd.h>
#include <sys/mount.h>

using namespace Qt::StringLiterals;
using namespace ZEVErrorFileErrorHelpers;

namespace {

ZEVPlainFileManager &manager() { return *ZEVPlainFileManager::defaultManager(); }

QStringList paths(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls)
        paths.append(url.path());
    return paths;
}

} // namespace

class tst_ZEVFileHelpers : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QByteArray path(const QByteArray &name) const { return m_folder.path().toUtf8() + '/' + name; }
    QUrl url(const QByteArray &name) const { return ZEVFileURL::withPath(path(name)); }

private Q_SLOTS:
    void cleanupTestCase() { std::filesystem::remove_all(m_folder.path().toStdString()); }

    void errorsAreToldByDomainAndCode()
    {
        const std::tuple<bool (*)(const ZEVError &), qint64> rows[] = {
            {ZEV_isNoSuchFileError, 4},
            {ZEV_isPermissionError, 513},
            {ZEV_isFileWriteFileExistsError, 516},
            {ZEV_isFileWriteUnknownError, 512},
        };
        for (const auto &[test, code] : rows) {
            for (const qint64 other : {4, 512, 513, 516})
                COMPARE_ROW(other, test(ZEVError(u"NSCocoaErrorDomain", other)), other == code);
            QVERIFY(!test(ZEVError(u"NSPOSIXErrorDomain", code)));
        }
        const auto from = [](const QVariant &variant) {
            const ZEVError error(u"x", 1, {{u"NSUserStringVariant"_s, variant}});
            return 2 * ZEV_originatesFromMoveOperation(error) + ZEV_originatesFromCopyOperation(error);
        };
        QCOMPARE(from(QVariantList{u"Move"_s, u"Copy"_s}), 2);
        QCOMPARE(from(QStringList{u"Copy"_s}), 1);
        for (const QVariant &none : {QVariant(), QVariant(QVariantList()), QVariant(QStringList{u"copy"_s})})
            QCOMPARE(from(none), 0);
    }

    void safePlacesLieWithinFoldersOfTheHomeFolder()
    {
        const QByteArray user = getpwuid(geteuid())->pw_name;
        qputenv("HOME", path("home"));
        QVERIFY(QDir().mkpath(QString::fromUtf8(path("home/Music"))));
        std::filesystem::create_directory_symlink("home/Music", path("link").toStdString());
        const std::tuple<QByteArray, bool> rows[] = {
            {"/Users/" + user + "/Music/a", true},
            {"/Users/" + user + "/Music", false},
            {"/Users/" + user + "x/Music/a", false},
            {path("home/Music/a"), true},
            {path("home/Music"), false},
            {path("home"), false},
            {path("homes/Music/a"), false},
            {path("home/Music/../a"), false},
            {path("link/a"), true},
            {path("link"), false},
            {path("home/Music/dropBOX"), false},
            {path("home/Music/Dropbox/a"), true},
            {"/Volumes/Disk", false},
            {"/Volumes/Disk/Music", true},
            {"/usr/lib/a/b/c/d", false},
            {"/media/ann/none/a", false},
            {"/", false},
            {"", false},
        };
        for (const auto &[place, isSafe] : rows)
            COMPARE_ROW(place, ZEVURLFileAccess::isSafeURL(ZEVFileURL::withPath(place)), isSafe);
    }

    void safePlacesLieWithinVolumes()
    {
        const QTemporaryDir mounted(u"/mnt/zev-XXXXXX"_s);
        const QByteArray root = mounted.path().toUtf8();
        if (geteuid() != 0 || mount("none", root.constData(), "tmpfs", 0, "size=64k") < 0)
            QSKIP("No right to mount a volume");
        const bool isSafe = ZEVURLFileAccess::isSafeURL(ZEVFileURL::withPath(root + "/a"));
        const bool rootIsSafe = ZEVURLFileAccess::isSafeURL(ZEVFileURL::withPath(root));
        QVERIFY(umount(root.constData()) == 0);
        QVERIFY(isSafe);
        QVERIFY(!rootIsSafe);
    }

    void takenNamesAreNumbered()
    {
        const auto write = [&](const QByteArray &name, QUrl *final, ZEVError *error = nullptr) {
            return ZEVDataUniqueFileWriting::writeToURLSansOverwrite("new", url(name), final, error);
        };
        QUrl final;
        for (const auto &[name, result] : {std::pair("Cover.jpg", "Cover.jpg"),
                                           {"Cover.jpg", "Cover 2.jpg"},
                                           {"Cover.jpg", "Cover 3.jpg"},
                                           {"README", "README"},
                                           {"README", "README 2"},
                                           {"Vol. 2", "Vol. 2"},
                                           {"Vol. 2", "Vol. 2 2"}}) {
            QVERIFY(write(name, &final));
            QCOMPARE(final, url(result));
            QCOMPARE(Trees::read(path(result)), "new");
        }
        for (int n = 3; n <= 300; ++n)
            QVERIFY(Trees::write(path("README " + QByteArray::number(n)), "old"));
        ZEVError error;
        QVERIFY(!write("README", &final, &error));
        QVERIFY(ZEV_isFileWriteFileExistsError(error));
        QVERIFY(!QFile::exists(QString::fromUtf8(path("README 301"))));
        QVERIFY(!write("none/README", &final, &error));
        QVERIFY(ZEV_isNoSuchFileError(error));
        {
            const SystemFaults::Nth full(4, ENOSPC);
            QVERIFY(!write("Full", &final, &error));
        }
        QCOMPARE(ZEVFileErrors::posixCode(error), ENOSPC);
        QVERIFY(!Trees::names(m_folder.path().toUtf8()).join('/').contains("Full"));
        QVERIFY(!Trees::names(m_folder.path().toUtf8()).join('/').contains(".zev-"));
    }

    void anOperationIsTriedUnderOtherNames()
    {
        int attempts = 0;
        const auto attempt = [&](int succeedsAt, ZEVError failure, const QByteArray &name, QUrl &out) {
            attempts = 0;
            return ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(
                url(name), &out, [&](const QUrl &receiver, const QUrl &, ZEVError *error) {
                    *error = failure;
                    return ++attempts == succeedsAt && receiver == url(name);
                });
        };
        const ZEVError taken(u"NSCocoaErrorDomain", 516), foreign(u"x", 516);
        QUrl out;
        QVERIFY(attempt(3, taken, "a.mp3", out));
        QVERIFY(out == url("a 4.mp3"));
        QVERIFY(attempt(1, taken, "Name", out));
        QVERIFY(out == url("Name 2."));
        QVERIFY(!attempt(0, taken, "a", out));
        QVERIFY(attempts == 998);
        QVERIFY(!attempt(0, foreign, "a", out));
        QVERIFY(attempts == 1);
    }

    void commonAncestors()
    {
        using namespace ZEVURLCommonAncestor;
        QVERIFY(QDir().mkpath(QString::fromUtf8(path("x/ab"))));
        QVERIFY(Trees::write(path("x/ac"), {}));
        QVERIFY(Trees::write(path("x/ab/f"), {}));
        QCOMPARE(URLCommonToURLs({url("a/b/c.mp3"), url("a/b/d.mp3")}), url("a/b"));
        QCOMPARE(URLCommonToURLs({url("a/b"), url("a/b/d")}), url("a/b"));
        QCOMPARE(URLCommonToURLs({QUrl(u"file:///a"_s), QUrl(u"file:///b"_s)}), QUrl(u"file:///"_s));
        QVERIFY(!URLCommonToURLs({}).isValid());
        QVERIFY(!commonDirectoryToURLs({url("no/a"), url("no/b")}).isValid());
        QCOMPARE(commonDirectoryToURLs({url("x/ac")}), url("x"));
        QCOMPARE(commonDirectoryToURLs({url("x/ab/f"), url("x/ac")}), url("x"));
        QCOMPARE(paths(firstDescendantsOfCommonParent({url("x/ab/f"), url("x/ac"), url("x/ab/g")})),
                 paths({url("x/ab"), url("x/ac"), url("x/ab")}));
        QCOMPARE(firstExistingAncestorURL(url("x/ac")), url("x"));
        QCOMPARE(firstExistingAncestorURL(url("x/none/\xFF")), url("x"));
        QCOMPARE(firstExistingAncestorURL(QUrl(u"file:///none"_s)).path(), u"/"_s);
    }

    void foldersAndFilters()
    {
        using namespace ZEVFileManagerHelpers;
        QVERIFY(QDir().mkpath(QString::fromUtf8(path("empty"))));
        QVERIFY(Trees::write(path("empty/.hidden"), {}));
        QVERIFY(isEmptyDirectoryAtURL(manager(), url("empty")));
        QVERIFY(isEmptyDirectoryAtURL(manager(), url("empty/.hidden"))); // which cannot be listed
        QVERIFY(!isEmptyDirectoryAtURL(manager(), url("")));
        QVERIFY(!isEmptyDirectoryAtURL(manager(), url("none")));
        const QList<QUrl> all{url("empty/.hidden"), url("none"), url("empty")};
        QCOMPARE(filteredArrayOfExistingURLs(manager(), all, false), (QList{all.at(0), all.at(2)}));
        QCOMPARE(filteredArrayOfExistingURLs(manager(), all, true), QList{all.at(2)});
    }

    void anAtomicCopyReplacesAllOrNothing()
    {
        using ZEVFileManagerHelpers::atomicCopyItemAtURL;
        Trees::makeHard(path("hard"));
        QVERIFY(QDir().mkpath(QString::fromUtf8(path("to"))));
        QVERIFY(Trees::write(path("to/item"), "old"));
        const Trees::Contents before = Trees::contents(path("hard"));
        bool wasReached = true;
        for (int n = 1; wasReached; ++n) {
            bool done = false;
            {
                const SystemFaults::Nth fault(n, EIO);
                done = atomicCopyItemAtURL(manager(), url("hard"), url("to/item"), nullptr);
                wasReached = fault.wasReached();
            }
            QVERIFY(done ? Trees::contents(path("to/item")) == before
                         : Trees::read(path("to/item")) == "old");
            QCOMPARE(Trees::contents(path("hard")), before);
            if (done && wasReached) // where the failure is none, as in cleaning up
                std::filesystem::remove_all(path("to/item").toStdString());
            if (wasReached)
                QVERIFY(Trees::write(path("to/item"), "old"));
        }
        QVERIFY(!atomicCopyItemAtURL(manager(), url("to/item/inner"), url("to"), nullptr));
        QVERIFY(atomicCopyItemAtURL(manager(), url("to/item"), url("to/item"), nullptr)); // itself
        QCOMPARE(Trees::contents(path("to/item")), before);
    }

    void titlesHaveAnIconAndAreToldApart()
    {
        using namespace ZEVFileManagerHelpers;
        QImage icon(64, 64, QImage::Format_RGB32);
        icon.fill(Qt::red);
        const ZEVAttributedString title = attributedTitleForFileName(u"a.mp3"_s, icon);
        QCOMPARE(icon.deviceIndependentSize(), QSizeF(16, 16));
        QCOMPARE(title.string(), u"\uFFFCa.mp3"_s);
        const QTextFormat format = title.formats().value(0).format;
        QCOMPARE(format.property(AttachmentBounds).toRectF(), QRectF(0, -3, 20, 16));
        const QImage image = format.property(AttachmentImage).value<QImage>();
        QCOMPARE(image.deviceIndependentSize(), QSizeF(20, 16));
        const qreal ratio = image.devicePixelRatio();
        QCOMPARE(image.pixelColor((QPointF(15, 15) * ratio).toPoint()), QColor(Qt::red));
        QCOMPARE(image.pixelColor((QPointF(17, 8) * ratio).toPoint()).alpha(), 0);
        QCOMPARE(uniqueDisplayName(manager(), true, url("Album/a.mp3"), icon).string(),
                 u"\uFFFCa.mp3 \u2014\u00A0\uFFFCAlbum"_s);
    }
};

QTEST_MAIN(tst_ZEVFileHelpers)
#include "tst_ZEVFileHelpers.moc"
