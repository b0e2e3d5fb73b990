// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TagWriter.h>

#include <QTemporaryDir>
#include <QTest>

#include <fileref.h>
#include <sys/stat.h>
#include <tpropertymap.h>
#include <unistd.h>

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

    void valuesStayValues_data() { writesOnlyWhatChanged_data(); }
    void valuesStayValues()
    {
        QFETCH(QString, sample);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"copy."_s + QFileInfo(sample).suffix());
        QVERIFY(Samples::copy(sample, path));
        const auto write = [&](TrackField field, const QStringList &values) {
            return TagWriter::write(native(path), {{field, TagValues::text(values)}});
        };
        const auto read = [&](const char *key) {
            const TagLib::FileRef file(native(path).c_str(), false);
            return QString::fromStdString(file.file()->properties()[key].toString("|").to8Bit(true));
        };
        QCOMPARE(write(TrackField::Genre, {u"Rock"_s, u"Pop; Indie"_s, u"Folk"_s}), QString());
        QCOMPARE(write(TrackField::Artist, {u"A"_s, u"B/C"_s}), QString());
        QCOMPARE(read("GENRE"), u"Rock|Pop; Indie|Folk"_s);
        QCOMPARE(TagReader::read(native(path)).text(TrackField::Genre),
                 TagValues::text({u"Rock"_s, u"Pop; Indie"_s, u"Folk"_s}));
        QCOMPARE(write(TrackField::Genre, {u"Rock"_s, u"Shoegaze"_s}), QString());
        QCOMPARE(read("GENRE") + u' ' + read("ARTIST"), u"Rock|Shoegaze A|B/C"_s);
        QCOMPARE(write(TrackField::Genre, {QString()}), QString());
        QCOMPARE(read("GENRE"), QString());
    }

    void textsAreHeldAsTypedOrRefused_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<TrackField>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("held"); // empty where it is refused
        const auto row = [](const QString &sample, TrackField field, const QString &text,
                            const QString &held) {
            QTest::newRow(qPrintable(sample.right(4) + text)) << sample << field << text << held;
        };
        for (const auto &sample : {u"Harbour/01 Track 12.mp3"_s, u"Nordwind/06 Gruesse.flac"_s,
                                   u"Minato/11 Yoru.ogg"_s, u"Track 7.m4a"_s}) {
            row(sample, TrackField::Year, u"2003-05-17"_s, u"2003-05-17"_s);
            row(sample, TrackField::Number, u"7/12"_s, u"7/12"_s);
        }
        row(u"Harbour/01 Track 12.mp3"_s, TrackField::Year, u"circa 1970"_s, u"circa 1970"_s);
        row(u"Nordwind/06 Gruesse.flac"_s, TrackField::Number, u"A1"_s, u"A1"_s);
        row(u"Track 7.m4a"_s, TrackField::Number, u"A1"_s, {});
        row(u"Track 7.m4a"_s, TrackField::Number, u"07"_s, u"7"_s);
    }
    void textsAreHeldAsTypedOrRefused()
    {
        QFETCH(QString, sample);
        QFETCH(TrackField, field);
        QFETCH(QString, text);
        QFETCH(QString, held);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a."_s + QFileInfo(sample).suffix());
        QVERIFY(Samples::copy(sample, path));
        const QByteArray before = bytes(path);
        const QString problem = TagWriter::write(native(path), {{field, text}});
        QVERIFY2(held.isEmpty() == problem.contains(text), qPrintable(problem));
        if (held.isEmpty())
            QCOMPARE(bytes(path), before);
        else
            QCOMPARE(TagReader::read(native(path)).text(field), held);
    }

    void aFolderMayTakeNoOtherFile()
    {
        if (::geteuid() == 0)
            QSKIP("The superuser may write everywhere.");
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.flac"_s);
        QVERIFY(Samples::copy(u"Nordwind/06 Gruesse.flac"_s, path));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
        const QString problem = TagWriter::write(native(path), {{TrackField::Title, QString(20000, u'x')}});
        const QString shorter = TagWriter::write(native(path), {{TrackField::Title, u"x"_s}});
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(problem + shorter, QString());
        QCOMPARE(TagReader::read(native(path)).text(TrackField::Title), u"x"_s);
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
