// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../tageditor/Samples.h"
#include "Desktop.h"

#include <tageditor/artwork/ArtworkTag.h>
#include <tageditor/tracks/TagWriter.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QSettings>

#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Limit = 50; ///< pixels that new artwork may have
constexpr int Large = 80;

QByteArray png(int width) { return EncodedImages::encoded(width, 40, "PNG"); }

std::filesystem::path native(const QString &path) { return QFile::encodeName(path).toStdString(); }

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Two tag editors and two folder windows side by side, each with one file or none.
class tst_ArtworkOnTheDesktop : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Desktop> m_desktop;
    QTemporaryDir m_folder;
    QStringList m_editors;
    QString m_picture = m_folder.filePath(u"pictures/cover.png"_s);

    QString track(int editor) const { return m_folder.filePath(u"tracks%1/a.flac"_s.arg(editor)); }
    QByteArray inFile(int editor) const { return ArtworkTag::read(native(track(editor))); }
    QRect place(int column, int row) const { return {column * 800 + 4, row * 480 + 24, 770, 430}; }
    /// In the well, which fills most of the dock at the right edge.
    QPoint well(int editor) const { return place(0, editor).topRight() + QPoint(-90, 120); }

    /// What the editor shows is what it saves.
    bool saves(int editor, const std::function<bool(const QByteArray &)> &isExpected) const
    {
        m_desktop->activate(m_editors.at(editor));
        m_desktop->key(u"ctrl+s"_s);
        return Desktop::waitFor([&] { return isExpected(inFile(editor)); }, 3000);
    }

    void startEditor(int editor)
    {
        QDir().mkpath(QFileInfo(track(editor)).path());
        QVERIFY(Samples::copy(u"Nordwind/06 Gruesse.flac"_s, track(editor)));
        QCOMPARE(TagWriter::write(
                     native(track(editor)),
                     {{{TrackField::Album, u"Winter/Wind"_s}}, editor == 0 ? png(Large) : QByteArray()})
                     .problem,
                 QString());
        m_desktop->start(QStringLiteral(TAGEDITOR_PROGRAM), {QFileInfo(track(editor)).path()});
        m_editors.append(m_desktop->placedWindow(u"tracks%1"_s.arg(editor), place(0, editor)));
        QVERIFY(!m_editors.last().isEmpty());
        m_desktop->activate(m_editors.last());
        for (const QString &key :
             {u"alt+v"_s, u"Return"_s}) // the View menu hides the tags beside the artwork
            m_desktop->key(key);
        m_desktop->click(place(0, editor).topLeft() + QPoint(60, 350)); // below the rows of the table
        m_desktop->key(u"ctrl+a"_s);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!Desktop::isPossible())
            QSKIP("There is no Xvfb to run a desktop on.");
        m_desktop = std::make_unique<Desktop>();
        QDir(m_folder.path()).mkpath(u"pictures"_s);
        QDir(m_folder.path()).mkpath(u"empty"_s);
        QFile picture(m_picture);
        QVERIFY(picture.open(QFile::WriteOnly));
        QVERIFY(picture.write(png(30)) > 0);
        picture.close();
        QDir(m_desktop->home()).mkpath(u"zevglobalutils"_s);
        ZEVUserDefaults::setStandardStore(std::make_unique<QSettings>(
            m_desktop->home() + u"/zevglobalutils/tageditor.conf"_s, QSettings::IniFormat));
        ZEVUserDefaults::standardUserDefaults()->setObject(true, u"ArtworkIsLimited"_s);
        ZEVUserDefaults::standardUserDefaults()->setObject(Limit, u"ArtworkLimitPixels"_s);
        ZEVUserDefaults::setStandardStore(nullptr);
        for (const QString &folder : {u"pictures"_s, u"empty"_s}) {
            m_desktop->start(u"thunar"_s, {m_folder.filePath(folder)});
            QVERIFY(!m_desktop->placedWindow(folder, place(1, folder == u"empty" ? 1 : 0)).isEmpty());
        }
        startEditor(0);
        startEditor(1);
    }

    /// Nothing but the promise tells the folder of the name, and the source of the drag numbers a second file: bytes
    /// alone would be named by the file manager.
    void theArtworkBecomesAFileOfTheFolder()
    {
        for (const QString &name : {u"Winter:Wind.png"_s, u"Winter:Wind 2.png"_s}) {
            const QString file = m_folder.filePath(u"empty/"_s + name);
            QVERIFY(m_desktop->drag(well(0), place(1, 1).center() + QPoint(100, 80),
                                    [&] { return contents(file) == png(Large); }));
        }
        QCOMPARE(QDir(m_folder.filePath(u"empty"_s)).entryList(QDir::Files).size(), 2);
    }

    void aFolderThatTakesNothing()
    {
        const QByteArray folder = QFile::encodeName(m_folder.filePath(u"empty"_s));
        if (geteuid() != 0 || mount("none", folder.constData(), "tmpfs", MS_RDONLY, nullptr) < 0)
            QSKIP("No right to mount a volume");
        const auto alerts = [&] { return m_desktop->tool(u"search --onlyvisible --name ^Tag.Editor$"_s); };
        const bool isShown = m_desktop->drag(well(0), place(1, 1).center() + QPoint(100, 80),
                                             [&] { return !alerts().isEmpty(); });
        m_desktop->tool(u"key Escape"_s);
        QCOMPARE(umount2(folder.constData(), MNT_DETACH), 0); // the file manager looks at it
        QVERIFY(isShown);
        QVERIFY(Desktop::waitFor([&] { return alerts().isEmpty(); }));
    }

    void aPictureOfTheFolderBecomesTheArtwork()
    {
        const auto hasArrived = [this] {
            return saves(1, [](const QByteArray &now) { return now == png(30); });
        };
        bool isDone = false; // where the file manager has put its first icon depends on its theme
        for (int y = 125; y < 260 && !isDone; y += 25) {
            for (int x = 190; x < 330 && !isDone; x += 25) {
                if (!m_desktop->beginDrag(place(1, 0).topLeft() + QPoint(x, y)))
                    continue;
                m_desktop->drop(well(1));
                isDone = hasArrived();
            }
        }
        QVERIFY(isDone);
        QCOMPARE(contents(m_picture), png(30)); // copied, not moved
    }

    void fromOneProcessToTheOther()
    {
        const auto isLimited = [](const QByteArray &now) {
            return QImage::fromData(now).size() == QSize(Limit, Limit * 40 / Large);
        };
        QVERIFY(m_desktop->drag(well(0), well(1), [&] { return saves(1, isLimited); }));
        QCOMPARE(inFile(0), png(Large));
    }

    /// The other process is the same application: what it has copied was vetted there.
    void copiedInOneAndPastedInTheOther()
    {
        for (int editor : {0, 1}) {
            m_desktop->activate(m_editors.at(editor));
            m_desktop->click(well(editor));
            m_desktop->key(editor == 0 ? u"ctrl+c"_s : u"ctrl+v"_s);
        }
        QVERIFY(Desktop::waitFor([this] {
            m_desktop->key(u"ctrl+v"_s);
            return saves(1, [](const QByteArray &now) { return now == png(Large); });
        }));
    }
};

QTEST_GUILESS_MAIN(tst_ArtworkOnTheDesktop)
#include "tst_ArtworkOnTheDesktop.moc"
