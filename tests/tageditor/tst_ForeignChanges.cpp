// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Shown.h"

#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagWriter.h>
#include <tageditor/window/Translations.h>

#include <QApplication>
#include <QHeaderView>
#include <QMessageBox>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// A folder with one track, shown; and another program that writes into it.
struct Shared {
    Shared()
    {
        if (!Samples::copy(u"Track 7.m4a"_s, path()) || !shown.visible || !shown.open(folder.path()))
            qFatal("No sample");
    }

    QString path() const { return folder.filePath(u"a.m4a"_s); }
    bool writeElsewhere(TrackField field, const QString &text) const
    {
        return TagWriter::write(path().toStdString(), {{{field, text}}}).problem.isEmpty();
    }
    QString written(TrackField field) const { return TagReader::read(path().toStdString()).text(field); }
    QString title() const { return shown.text(0, TrackField::Title); }

    /// As by the keys of the table.
    void type(const QString &title)
    {
        auto &tracks = const_cast<TrackTableModel &>(shown.window.tracks());
        tracks.setData(tracks.index(0, int(TrackField::Title)), title, Qt::EditRole);
    }

    /// Saves, and answers the question by the button with \a text; empty when none was asked.
    QString saveAnswering(const QString &text)
    {
        QString asked;
        QTimer::singleShot(0, &shown.window, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            for (QAbstractButton *button : box ? box->buttons() : QList<QAbstractButton *>()) {
                if (button->text().remove(u'&') != text)
                    continue;
                asked = box->text();
                button->click();
            }
        });
        shown.window.save();
        return asked;
    }

    QTemporaryDir folder;
    Shown shown;
};

} // namespace

/// What other programs do to the files while they are open here.
class tst_ForeignChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Translations::install(); } // one file is told from many
    void init() { useStoreIn(m_store); }

    void theyAreShownAsTheyCome()
    {
        Shared shared;
        QVERIFY(shared.writeElsewhere(TrackField::Title, u"elsewhere"_s));
        QTRY_COMPARE(shared.title(), u"elsewhere"_s);
        QVERIFY(shared.shown.status().contains(u"1 file was changed"));
        const QString away = shared.folder.filePath(u"a.away"_s);
        QVERIFY(QFile::rename(shared.path(), away));
        QTRY_VERIFY(shared.shown.status().contains(u"1 unreadable"));
        QVERIFY(QFile::rename(away, shared.path()));
        QTRY_COMPARE(shared.shown.status().section(u'|', 0, 0), u"1 track"_s);
        QCOMPARE(shared.title(), u"elsewhere"_s);
    }

    void newFilesAreAdded()
    {
        Shared shared;
        const auto names = [&] {
            QStringList files;
            for (const Track &track : shared.shown.window.tracks().tracks())
                files.append(track.text(TrackField::FileName));
            return files.join(u' ');
        };
        shared.type(u"mine"_s);
        QVERIFY(QDir(shared.folder.path()).mkdir(u"new"_s));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, shared.folder.filePath(u"new/b.ogg"_s)));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, shared.folder.filePath(u"c.ogg"_s), 40)); // half of it
        QTRY_COMPARE(names(), u"a.m4a c.ogg b.ogg"_s);
        QVERIFY(shared.shown.status().contains(u"2 new files"));
        QVERIFY(Samples::copy(u"Interlude.ogg"_s, shared.folder.filePath(u"c.ogg"_s)));
        QTRY_COMPARE(shared.shown.text(1, TrackField::Title), u"Interlude"_s);
        QCOMPARE(shared.saveAnswering(u"Leave"_s), QString());
        QTest::qWait(600); // long enough for own files to be noticed
        QCOMPARE(names(), u"a.m4a c.ogg b.ogg"_s);
        QCOMPARE(shared.title(), u"mine"_s);
    }

    void ownSavesAreNotTakenForThem()
    {
        Shared shared;
        for (const QString &title : {u"one"_s, u"two"_s}) {
            shared.type(title);
            QCOMPARE(shared.saveAnswering(u"Leave"_s), QString());
            QCOMPARE(shared.written(TrackField::Title), title);
        }
    }

    void savingAsksBeforeItWritesOverThem_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("titles"); // in the file and in the table, and the album there
        QTest::addColumn<bool>("isModified");
        QTest::newRow("overwrite") << u"Overwrite"_s << QStringList{u"mine"_s, u"mine"_s, u"kept"_s} << false;
        QTest::newRow("reload") << u"Reload"_s << QStringList{u"theirs"_s, u"theirs"_s, u"kept"_s} << false;
        QTest::newRow("leave") << u"Leave"_s << QStringList{u"theirs"_s, u"mine"_s, u"Found Tapes"_s} << true;
    }
    void savingAsksBeforeItWritesOverThem()
    {
        QFETCH(QString, answer);
        Shared shared;
        shared.type(u"mine"_s);
        QVERIFY(shared.writeElsewhere(TrackField::Title, u"theirs"_s));
        QVERIFY(shared.writeElsewhere(TrackField::Album, u"kept"_s));
        QTest::qWait(600); // long enough for the change to be noticed, and left alone
        QCOMPARE(shared.title(), u"mine"_s);
        QVERIFY(!shared.saveAnswering(answer).isEmpty());
        const QStringList titles{shared.written(TrackField::Title), shared.title(),
                                 shared.shown.text(0, TrackField::Album)};
        QTEST(titles, "titles");
        QTEST(shared.shown.window.isWindowModified(), "isModified");
        QCOMPARE(shared.written(TrackField::Album), u"kept"_s);
    }

    void theWindowComesBackAsItWasLeft()
    {
        const QString folder = Samples::folder() + u"/Sever"_s;
        {
            Shown shown;
            QVERIFY(shown.visible);
            QVERIFY(shown.open(folder));
            QHeaderView *header = shown.window.table().horizontalHeader();
            QMenu *columns = shown.action(u"Columns"_s)->menu();
            Q_EMIT columns->aboutToShow();
            columns->actions().at(int(TrackField::Year))->trigger();
            header->moveSection(0, 2);
            header->resizeSection(1, 123);
            shown.window.close();
        }
        Shown shown;
        QCOMPARE(MainWindow::lastFolder(), folder);
        QVERIFY(shown.open(folder));
        const QHeaderView *header = shown.window.table().horizontalHeader();
        QVERIFY(header->isSectionHidden(int(TrackField::Year)));
        QCOMPARE(header->visualIndex(0), 2);
        QCOMPARE(header->sectionSize(1), 123);
    }

private:
    QTemporaryDir m_store;
};

QTEST_MAIN(tst_ForeignChanges)
#include "tst_ForeignChanges.moc"
