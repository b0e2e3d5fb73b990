// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/tracks/TagReader.h>

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_TagReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsRead_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("fields");
        const auto row = [](const char *name, const QString &file, const QString &fields) {
            QTest::newRow(name) << file << fields;
        };
        row("MP3, comment in a frame of the user's", u"Harbour/01 Track 12.mp3"_s,
            u"01 Track 12.mp3|Track 12|The Paper Lanterns|Harbour Lights|1998|1|Folk|"
            "Recorded in 1997, take 3. More at https://music.example.org/harbour?id=12"_s);
        row("FLAC, two lines", u"Maree/05 Fenetre.flac"_s,
            u"05 Fenetre.flac|La fenêtre d’Édouard|Zoé Lumière|Les Marées|2004|5|Chanson|"
            "Première prise,\n12 août 2003"_s);
        row("Ogg, Japanese", u"Minato/11 Yoru.ogg"_s,
            u"11 Yoru.ogg|夜の電車|みなと合奏団|雨と窓|2019|11|エレクトロニカ|"
            "録音 2019年3月 https://example.com/minato"_s);
        row("M4A, Arabic", u"Nakhil/13 Layl.m4a"_s,
            u"13 Layl.m4a|ليل المدينة|فرقة النخيل|ضوء القمر|2021|13|طرب|للتواصل: info@example.com"_s);
        row("FLAC, Cyrillic", u"Sever/09 Reka.flac"_s,
            u"09 Reka.flac|Тихая река|Анна Лесная|Северный ветер|2015|9|Ambient|"
            "Запись 2015 года, связь: anna@example.org"_s);
        row("M4A, beyond the first plane", u"Track 7.m4a"_s,
            u"Track 7.m4a|Track 7|Nobody & the 404s|Found Tapes|1987|7|Lo-Fi|"
            "Tape 3 of 12 \U0001F4FC side B, 0:42"_s);
        row("M4A, artwork", u"Harbour/03 Percent.m4a"_s,
            u"03 Percent.m4a|100% Live|The Paper Lanterns|Harbour Lights|1999|3|Folk|"
            "24 bit, 48000 Hz; see http://example.com/a_(live)"_s);
        row("no number is no zero", u"Interlude.ogg"_s, u"Interlude.ogg|Interlude||||||"_s);
    }
    void everyFieldIsRead()
    {
        QFETCH(QString, file);
        const Track track = TagReader::read(Samples::path(file));
        QCOMPARE(track.error, QString());
        QCOMPARE(track.fileSize, QFileInfo(Samples::folder() + u'/' + file).size());
        QTEST(
            QStringList(track.fields.begin(), track.fields.begin() + int(TrackField::AlbumArtist)).join(u'|'),
            "fields");
    }

    void whatCannotBeReadSaysWhy_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("error");
        const QString damaged = u"No audio found: damaged or cut off"_s;
        QTest::newRow("empty") << u"Interlude.ogg"_s << u"a.ogg"_s << 0 << u"Empty file"_s;
        QTest::newRow("MP3 cut in the tag") << u"Harbour/01 Track 12.mp3"_s << u"a.mp3"_s << 300 << damaged;
        QTest::newRow("FLAC cut in the tag") << u"Sever/09 Reka.flac"_s << u"a.flac"_s << 60 << damaged;
        QTest::newRow("Ogg cut in a header") << u"Interlude.ogg"_s << u"a.ogg"_s << 70 << damaged;
        QTest::newRow("M4A cut in its index") << u"Track 7.m4a"_s << u"a.m4a"_s << 700 << damaged;
        QTest::newRow("another kind") << u"make-sample"_s << u"a.flac"_s << -1 << damaged;
    }
    void whatCannotBeReadSaysWhy()
    {
        QFETCH(QString, sample);
        QFETCH(QString, name);
        QFETCH(int, size);
        const QTemporaryDir folder;
        QVERIFY(Samples::copy(sample, folder.filePath(name), size));
        const Track track = TagReader::read(folder.filePath(name).toStdString());
        QTEST(track.error, "error");
        QCOMPARE(track.text(TrackField::FileName), name);
        QCOMPARE(track.text(TrackField::Title), QString());
    }

    void whatIsNoFileDoesNotBlock()
    {
        const QTemporaryDir folder;
        const std::string pipe = folder.filePath(u"pipe.mp3"_s).toStdString();
        QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
        QCOMPARE(TagReader::read(pipe).error, u"Not a regular file"_s);
        QCOMPARE(TagReader::read(folder.filePath(u"none.mp3"_s).toStdString()).error,
                 u"No such file or directory"_s);
    }

    void theSystemsRefusalIsTold()
    {
        if (::geteuid() == 0)
            QSKIP("The superuser may read everything.");
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"a.mp3"_s);
        QVERIFY(Samples::copy(u"Maree/04 Ete.mp3"_s, file));
        QVERIFY(QFile::setPermissions(file, QFile::WriteOwner));
        QCOMPARE(TagReader::read(file.toStdString()).error, u"Permission denied"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TagReader)
#include "tst_TagReader.moc"
