// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagWriter.h>

#include <QTemporaryDir>
#include <QTest>

#include <fileref.h>
#include <sys/stat.h>
#include <tpropertymap.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytes(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

std::filesystem::path native(const QString &path) { return QFile::encodeName(path).toStdString(); }

} // namespace

class tst_TagWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesOnlyWhatChanged_data()
    {
        QTest::addColumn<QString>("sample");
        for (const auto &sample : {u"Harbour/01 Track 12.mp3"_s, u"Nordwind/06 Gruesse.flac"_s,
                                   u"Minato/11 Yoru.ogg"_s, u"Track 7.m4a"_s})
            QTest::newRow(qPrintable(sample)) << sample;
    }
    void writesOnlyWhatChanged()
    {
        QFETCH(QString, sample);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"copy."_s + QFileInfo(sample).suffix());
        QVERIFY2(Samples::copy(sample, path), qPrintable(sample));
        QVERIFY(::chmod(native(path).c_str(), 0640) == 0);
        const Track before = TagReader::read(native(path));
        const QString title = u"Ünï 漢字 \U0001F3B5 $1 %d"_s;
        const TagWriter::Texts texts{{TrackField::Title, title},
                                     {TrackField::Comment, u""_s},
                                     {TrackField::Year, u"1887"_s},
                                     {TrackField::Number, u"31"_s}};
        QCOMPARE(TagWriter::write(native(path), texts), QString());
        const Track after = TagReader::read(native(path));
        for (int field = 0; field < TrackFieldCount; ++field) {
            const QString expected = texts.value(TrackField(field), before.text(TrackField(field)));
            QCOMPARE(after.text(TrackField(field)), expected);
        }
        struct stat status { };
        QVERIFY(::stat(native(path).c_str(), &status) == 0);
        QCOMPARE(int(status.st_mode & 0777), 0640);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                 1);
    }

    void theNumberOfAllTracksStays()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.mp3"_s);
        QVERIFY(Samples::copy(u"Harbour/01 Track 12.mp3"_s, path));
        const auto number = [&] {
            const TagLib::FileRef file(native(path).c_str(), false);
            return file.file()->properties()["TRACKNUMBER"].toString();
        };
        {
            TagLib::FileRef file(native(path).c_str(), false);
            TagLib::PropertyMap properties = file.file()->properties();
            properties.replace("TRACKNUMBER", TagLib::StringList("7/12"));
            file.file()->setProperties(properties);
            QVERIFY(file.save());
        }
        QCOMPARE(TagWriter::write(native(path), {{TrackField::Number, u"8"_s}}), QString());
        QVERIFY(number() == "8/12");
        QCOMPARE(TagWriter::write(native(path), {{TrackField::Number, QString()}}), QString());
        QVERIFY(number().isEmpty());
    }

    void aFailureLeavesTheFile()
    {
        const QTemporaryDir folder;
        const QString damaged = folder.filePath(u"damaged.mp3"_s);
        QVERIFY(Samples::copy(u"Harbour/01 Track 12.mp3"_s, damaged, 30));
        const QByteArray before = bytes(damaged);
        QVERIFY(!TagWriter::write(native(damaged), {{TrackField::Title, u"x"_s}}).isEmpty());
        QCOMPARE(bytes(damaged), before);
        QVERIFY(!TagWriter::write(native(folder.filePath(u"gone.mp3"_s)), {}).isEmpty());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(u"damaged.mp3"_s));
    }

    void writesTheTargetOfALink()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file.flac"_s);
        const QString link = folder.filePath(u"link.flac"_s);
        QVERIFY(Samples::copy(u"Nordwind/06 Gruesse.flac"_s, path) && QFile::link(path, link));
        QCOMPARE(TagWriter::write(native(link), {{TrackField::Title, u"x"_s}}), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(TagReader::read(native(path)).text(TrackField::Title), u"x"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TagWriter)
#include "tst_TagWriter.moc"
