// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/TagReader.h>

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
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("MP3, comment in a frame of the user's")
            << u"Harbour/01 Track 12.mp3"_s
            << QStringList{u"01 Track 12.mp3"_s,
                           u"Track 12"_s,
                           u"The Paper Lanterns"_s,
                           u"Harbour Lights"_s,
                           u"1998"_s,
                           u"1"_s,
                           u"Folk"_s,
                           u"Recorded in 1997, take 3. More at https://music.example.org/harbour?id=12"_s};
        QTest::newRow("FLAC, two lines")
            << u"Maree/05 Fenetre.flac"_s << QStringList{u"05 Fenetre.flac"_s,
                                                         u"La fenêtre d’Édouard"_s,
                                                         u"Zoé Lumière"_s,
                                                         u"Les Marées"_s,
                                                         u"2004"_s,
                                                         u"5"_s,
                                                         u"Chanson"_s,
                                                         u"Première prise,\n12 août 2003"_s};
        QTest::newRow("Ogg, Japanese")
            << u"Minato/11 Yoru.ogg"_s
            << QStringList{u"11 Yoru.ogg"_s,    u"夜の電車"_s,
                           u"みなと合奏団"_s,   u"雨と窓"_s,
                           u"2019"_s,           u"11"_s,
                           u"エレクトロニカ"_s, u"録音 2019年3月 https://example.com/minato"_s};
        QTest::newRow("M4A, Arabic") << u"Nakhil/13 Layl.m4a"_s
                                     << QStringList{u"13 Layl.m4a"_s, u"ليل المدينة"_s,
                                                    u"فرقة النخيل"_s, u"ضوء القمر"_s,
                                                    u"2021"_s,        u"13"_s,
                                                    u"طرب"_s,         u"للتواصل: info@example.com"_s};
        QTest::newRow("FLAC, Cyrillic")
            << u"Sever/09 Reka.flac"_s
            << QStringList{u"09 Reka.flac"_s, u"Тихая река"_s,
                           u"Анна Лесная"_s,  u"Северный ветер"_s,
                           u"2015"_s,         u"9"_s,
                           u"Ambient"_s,      u"Запись 2015 года, связь: anna@example.org"_s};
        QTest::newRow("M4A, beyond the first plane")
            << u"Track 7.m4a"_s
            << QStringList{u"Track 7.m4a"_s,
                           u"Track 7"_s,
                           u"Nobody & the 404s"_s,
                           u"Found Tapes"_s,
                           u"1987"_s,
                           u"7"_s,
                           u"Lo-Fi"_s,
                           u"Tape 3 of 12 \U0001F4FC side B, 0:42"_s};
        QTest::newRow("no number is no zero")
            << u"Interlude.ogg"_s << QStringList{u"Interlude.ogg"_s, u"Interlude"_s, {}, {}, {}, {}, {}, {}};
    }
    void everyFieldIsRead()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, fields);
        const Track track = TagReader::read(Samples::path(file));
        QCOMPARE(track.error, QString());
        QCOMPARE(QStringList(track.fields.begin(), track.fields.end()), fields);
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
