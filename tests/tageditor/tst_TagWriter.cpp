// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TagWriter.h>

#include <QTemporaryDir>
#include <QTest>

#include <commentsframe.h>
#include <fileref.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <sys/stat.h>
#include <textidentificationframe.h>
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

QString problem(const QString &path, const TagChanges &changes)
{
    return TagWriter::write(native(path), changes).problem;
}

/// The comments of an MP3 by their languages, and what stands in the other frame that programs use for them.
namespace Comments {

void write(const std::filesystem::path &path, const std::vector<std::pair<const char *, const char *>> &texts,
           const char *note)
{
    TagLib::MPEG::File file(path.c_str());
    TagLib::ID3v2::Tag &tag = *file.ID3v2Tag(true);
    tag.removeFrames("COMM");
    tag.removeFrames("TXXX");
    for (const auto &[language, text] : texts) {
        auto *comment = new TagLib::ID3v2::CommentsFrame;
        comment->setLanguage(language);
        comment->setText(text);
        tag.addFrame(comment);
    }
    tag.addFrame(new TagLib::ID3v2::UserTextIdentificationFrame("comment", TagLib::StringList(note)));
    file.save();
}

QString read(const std::filesystem::path &path)
{
    TagLib::MPEG::File file(path.c_str());
    QStringList texts;
    for (const TagLib::ID3v2::Frame *frame : file.ID3v2Tag()->frameList("COMM")) {
        const TagLib::ByteVector language =
            dynamic_cast<const TagLib::ID3v2::CommentsFrame *>(frame)->language();
        texts.append(QLatin1StringView(language.data(), language.size()) + u' '
                     + QString::fromStdString(frame->toString().to8Bit(true)));
    }
    for (const TagLib::ID3v2::Frame *frame : file.ID3v2Tag()->frameList("TXXX"))
        texts.append(u"note "_s + QString::fromStdString(frame->toString().to8Bit(true)).section(u' ', 1));
    return texts.join(u", "_s);
}

} // namespace Comments

} // namespace

class tst_TagWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesOnlyWhatChanged_data()
    {
        QTest::addColumn<QString>("sample");
        for (const QString &sample : Samples::ofAllKinds())
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
        const QHash<TrackField, QString> texts{{TrackField::Title, title},
                                               {TrackField::Comment, u""_s},
                                               {TrackField::Year, u"1887"_s},
                                               {TrackField::Number, u"31"_s},
                                               {TrackField::TrackTotal, u"40"_s},
                                               {TrackField::Disc, u"2"_s},
                                               {TrackField::AlbumArtist, u"Various"_s},
                                               {TrackField::Composer, u"Å. B. C."_s}};
        const bool holdsAny = !sample.endsWith(u".m4a") && !sample.endsWith(u".wma"); // the rest is refused
        QCOMPARE(problem(path, {texts, {}, {{u"MOOD"_s, u"calm"_s}}}), QString());
        QCOMPARE(problem(path, {{}, {}, {{u"MY OWN"_s, u"x y"_s}}}).isEmpty(), holdsAny);
        QCOMPARE(problem(path, {{}, {}, {{u"MOOD"_s, QString()}}}), QString());
        QCOMPARE(TagReader::readOthers(native(path)).contains(u"MY OWN"_s), holdsAny);
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

    void valuesStayValues_data()
    {
        QTest::addColumn<QString>("sample");
        for (const QString &sample : Samples::ofAllKinds()) {
            if (!sample.endsWith(u".wma")) // which has one artist, and keeps no order: refused
                QTest::newRow(qPrintable(sample)) << sample;
        }
    }
    void valuesStayValues()
    {
        QFETCH(QString, sample);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"copy."_s + QFileInfo(sample).suffix());
        QVERIFY(Samples::copy(sample, path));
        const auto write = [&](TrackField field, const QStringList &values) {
            return problem(path, {{{field, TagValues::text(values)}}});
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

    void everyCommentKeepsItsLanguage()
    {
        const std::pair<QString, QString> rows[] = {
            {u"one|zwei"_s, u"eng one, deu zwei, note one"_s}, // as it was
            {u"two|zwei"_s, u"eng two, deu zwei, note two"_s},
            {u"zwei"_s, u"deu zwei"_s},
            {u"one|zwei|trois"_s, u"eng one, deu zwei, note one trois"_s},
            {QString(), QString()},
        };
        for (const auto &[values, frames] : rows) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"a.mp3"_s);
            QVERIFY(Samples::copy(u"Maree/04 Ete.mp3"_s, path));
            Comments::write(native(path), {{"eng", "one"}, {"deu", "zwei"}}, "one");
            const QStringList wanted = values.split(u'|');
            QCOMPARE(problem(path, {{{TrackField::Comment, TagValues::text(wanted)}}}), QString());
            QCOMPARE(Comments::read(native(path)), frames);
            QCOMPARE(TagReader::read(native(path)).text(TrackField::Comment), TagValues::text(wanted));
        }
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
            row(sample, TrackField::TrackTotal, u"12"_s, u"12"_s); // whatever number stands before it
            row(sample, TrackField::DiscTotal, u"2"_s, u"2"_s); // and where none does
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
        const QString refusal = problem(path, {{{field, text}}});
        QVERIFY2(held.isEmpty() == refusal.contains(text), qPrintable(refusal));
        if (held.isEmpty())
            QCOMPARE(bytes(path), before);
        else
            QCOMPARE(TagReader::read(native(path)).text(field), held);
    }

    /// "7/12" in one text, or the total apart.
    void aTotalStaysBesideItsNumber()
    {
        for (const auto &[number, total] : {std::pair("5/9", ""), {"5", "9"}}) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"a.flac"_s);
            QVERIFY(Samples::copy(u"Maree/05 Fenetre.flac"_s, path));
            {
                TagLib::FileRef file(native(path).c_str());
                TagLib::PropertyMap properties = file.file()->properties();
                properties.replace("TRACKNUMBER", TagLib::StringList(number));
                properties.replace("TOTALTRACKS", TagLib::StringList(total));
                file.file()->setProperties(properties);
                file.save();
            }
            const auto held = [&] {
                const Track track = TagReader::read(native(path));
                return track.text(TrackField::Number) + u' ' + track.text(TrackField::TrackTotal);
            };
            QCOMPARE(held(), u"5 9"_s);
            QCOMPARE(problem(path, {{{TrackField::Number, u"6"_s}}}), QString());
            QCOMPARE(held(), u"6 9"_s);
            QCOMPARE(problem(path, {{{TrackField::Number, u"7"_s}, {TrackField::TrackTotal, u"10"_s}}}),
                     QString());
            QCOMPARE(held(), u"7 10"_s);
            QCOMPARE(problem(path, {{{TrackField::TrackTotal, QString()}}}), QString());
            QCOMPARE(held(), u"7 "_s);
        }
    }

    void aFolderMayTakeNoOtherFile()
    {
        if (::geteuid() == 0)
            QSKIP("The superuser may write everywhere.");
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.flac"_s);
        QVERIFY(Samples::copy(u"Nordwind/06 Gruesse.flac"_s, path));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
        const QString longer = problem(path, {{{TrackField::Title, QString(20000, u'x')}}});
        const QString shorter = problem(path, {{{TrackField::Title, u"x"_s}}});
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(longer + shorter, QString());
        QCOMPARE(TagReader::read(native(path)).text(TrackField::Title), u"x"_s);
    }

    void aFailureLeavesTheFile()
    {
        const QTemporaryDir folder;
        const QString damaged = folder.filePath(u"damaged.mp3"_s);
        QVERIFY(Samples::copy(u"Harbour/01 Track 12.mp3"_s, damaged, 30));
        const QByteArray before = bytes(damaged);
        QVERIFY(!problem(damaged, {{{TrackField::Title, u"x"_s}}}).isEmpty());
        QCOMPARE(bytes(damaged), before);
        QVERIFY(!problem(folder.filePath(u"gone.mp3"_s), {}).isEmpty());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(u"damaged.mp3"_s));
    }

    void writesTheTargetOfALink()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file.flac"_s);
        const QString link = folder.filePath(u"link.flac"_s);
        QVERIFY(Samples::copy(u"Nordwind/06 Gruesse.flac"_s, path));
        QVERIFY(QFile::link(path, link));
        QCOMPARE(problem(link, {{{TrackField::Title, u"x"_s}}}), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(TagReader::read(native(path)).text(TrackField::Title), u"x"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TagWriter)
#include "tst_TagWriter.moc"
