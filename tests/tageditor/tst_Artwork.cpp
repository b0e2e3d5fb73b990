// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../Rows.h"
#include "Shown.h"

#include <tageditor/artwork/ArtworkDock.h>
#include <tageditor/artwork/ArtworkLimit.h>
#include <tageditor/artwork/ArtworkTag.h>
#include <tageditor/tracks/TagReader.h>
#include <tageditor/tracks/TagWriter.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <QCheckBox>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>

#include <attachedpictureframe.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mpegfile.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList Kinds{u"Harbour/01 Track 12.mp3"_s, u"Nordwind/06 Gruesse.flac"_s, u"Minato/11 Yoru.ogg"_s,
                        u"Track 7.m4a"_s};

QByteArray jpeg(int width) { return EncodedImages::encoded(width, 9, "JPG"); }
QByteArray png(int width) { return EncodedImages::encoded(width, 9, "PNG"); }

std::filesystem::path native(const QString &path) { return QFile::encodeName(path).toStdString(); }

TagLib::ByteVector vector(const QByteArray &bytes) { return {bytes.constData(), unsigned(bytes.size())}; }

/// A back cover before any front cover.
void addBackCover(const QString &path)
{
    if (path.endsWith(u"mp3"_s)) {
        TagLib::MPEG::File file(native(path).c_str());
        auto *const picture = new TagLib::ID3v2::AttachedPictureFrame;
        picture->setType(picture->BackCover);
        picture->setPicture(vector(jpeg(3)));
        file.ID3v2Tag(true)->addFrame(picture);
        file.save();
    } else if (path.endsWith(u"flac"_s)) {
        TagLib::FLAC::File file(native(path).c_str());
        auto *const picture = new TagLib::FLAC::Picture;
        picture->setType(picture->BackCover);
        picture->setData(vector(jpeg(3)));
        file.addPicture(picture);
        file.save();
    }
}

bool holdsBackCover(const QString &path)
{
    if (path.endsWith(u"mp3"_s)) {
        TagLib::MPEG::File file(native(path).c_str());
        return file.ID3v2Tag()->frameList("APIC").size() == 1;
    }
    TagLib::FLAC::File file(native(path).c_str());
    return !path.endsWith(u"flac"_s) || file.pictureList().size() == 1;
}

void drop(QWidget &view, const QByteArray &bytes)
{
    QMimeData data;
    data.setData(u"image/png"_s, bytes);
    QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &enter);
    QDropEvent event({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &event);
}

/// The window with a folder of two files of the same album and one of another kind.
struct Editor : Shown {
    Editor()
    {
        for (const QString &name : {u"a.mp3"_s, u"b.flac"_s, u"c.m4a"_s}) {
            const QStringList samples = Kinds.filter(QFileInfo(name).suffix());
            ready = ready && Samples::copy(samples.first(), folder.filePath(name));
        }
        TagWriter::write(native(path(0)), {{}, png(20)});
        TagWriter::write(native(path(1)), {{}, png(20)});
        ready = ready && open(folder.path());
    }
    QString path(int row) const
    {
        return folder.filePath(QStringList{u"a.mp3"_s, u"b.flac"_s, u"c.m4a"_s}.at(row));
    }
    QByteArray inFile(int row) const { return ArtworkTag::read(native(path(row))); }
    bool isSettled() const { return dock->selected().state() != SelectedArtwork::Reading; }
    QString description() const { return dock->well()->accessibleDescription(); }

    QTemporaryDir folder;
    bool ready = true;
    ArtworkDock *dock = window.findChild<ArtworkDock *>();
    ZEVDragImageView *well = dock->well();
};

} // namespace

class tst_Artwork : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_store;

private Q_SLOTS:
    void init() { useStoreIn(m_store); }

    void everyKindOfFileHoldsArtwork()
    {
        for (const QString &kind : Kinds) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"copy."_s + QFileInfo(kind).suffix());
            COMPARE_ROW(kind, Samples::copy(kind, path), true);
            addBackCover(path);
            const Track before = TagReader::read(native(path));
            for (const QByteArray &artwork : {jpeg(5), png(6), QByteArray("\0?", 2), QByteArray()}) {
                COMPARE_ROW(kind, TagWriter::write(native(path), {{}, artwork}).problem, QString());
                COMPARE_ROW(kind, ArtworkTag::read(native(path)), artwork);
                COMPARE_ROW(kind, TagReader::read(native(path)).fields, before.fields);
            }
            COMPARE_ROW(kind, holdsBackCover(path), true);
        }
    }

    void largeArtworkIsEncodedAnew()
    {
        const QByteArray noise = EncodedImages::encoded(600, 300, "PNG");
        QImage flat(600, 300, QImage::Format_ARGB32);
        flat.fill(Qt::transparent);
        const QByteArray flatPng = EncodedImages::encoded(flat, "PNG");
        const std::tuple<const char *, QByteArray, ArtworkLimit, QSize, QByteArray> rows[] = {
            {"no limit", noise, {}, {600, 300}, "PNG"},
            {"just right", noise, {600, noise.size()}, {600, 300}, "PNG"},
            {"too wide", flatPng, {200, 0}, {200, 100}, "PNG"},
            {"too many bytes", noise, {0, noise.size() / 2}, {}, "JPG"},
            {"far too many bytes", noise, {500, 4000}, {}, "JPG"},
        };
        for (const auto &[name, artwork, limit, size, format] : rows) {
            const QByteArray applied = limit.applied(ZEVImageDescription(artwork));
            const QImage image = QImage::fromData(applied, format.constData());
            COMPARE_ROW(name, limit.isKeptBy(applied) && !image.isNull(), true);
            if (size.isValid())
                COMPARE_ROW(name, image.size(), size);
            COMPARE_ROW(name, applied == artwork, limit.isKeptBy(artwork));
        }
        QCOMPARE(QImage::fromData(ArtworkLimit{0, flatPng.size() - 1}.applied(ZEVImageDescription(flatPng)))
                         .pixel(5, 5)
                     & 0xFFFFFF,
                 0xFFFFFFU); // transparent becomes white
    }

    void oneStepForAllTracks()
    {
        Editor editor;
        editor.window.setDiscardQuestion([] { return true; });
        QVERIFY(editor.ready);
        QVERIFY(!editor.well->isEditable());
        const QString texts[] = {u"PNG"_s, u"PNG"_s, u"Mixed artwork"_s};
        for (int row = 0; row < 3; ++row) {
            editor.select(row, TrackField::Title);
            QTRY_VERIFY(editor.isSettled());
            QVERIFY2(editor.description().contains(texts[row]), qPrintable(editor.description()));
            QCOMPARE(editor.well->bitmapData(), row < 2 ? png(20) : QByteArray());
        }
        drop(*editor.well, png(30));
        QTRY_VERIFY(editor.window.isWindowModified());
        QTRY_COMPARE(editor.well->bitmapData(), png(30));
        QCOMPARE(editor.inFile(0), png(20)); // not before it is saved
        QVERIFY(editor.window.save());
        QVERIFY(!editor.window.isWindowModified());
        for (int row = 0; row < 3; ++row)
            QCOMPARE(editor.inFile(row), png(30));
        editor.action(u"Undo"_s)->trigger();
        QTRY_COMPARE(editor.description(), u"Mixed artwork");
        QVERIFY(editor.window.isWindowModified());
        QVERIFY(editor.window.save());
        QCOMPARE(editor.inFile(1), png(20));
        QCOMPARE(editor.inFile(2), QByteArray());
        editor.dock->findChild<QPushButton *>(u"remove"_s)->click(); // though it is mixed
        QTRY_COMPARE(editor.description(), u"No artwork");
        editor.action(u"Undo"_s)->trigger();
        QVERIFY(!editor.window.isWindowModified()); // as the files are
    }

    void whatIsDroppedKeepsTheLimit()
    {
        {
            Editor editor;
            editor.dock->findChild<QSpinBox *>(u"pixels"_s)->setValue(100);
            editor.dock->findChild<QCheckBox *>()->setChecked(true);
        }
        Editor editor; // remembers
        editor.select(0, TrackField::Title);
        QTRY_VERIFY(editor.isSettled());
        drop(*editor.well, EncodedImages::encoded(400, 200, "PNG"));
        QTRY_VERIFY(editor.window.isWindowModified());
        QVERIFY(editor.window.save());
        QCOMPARE(QImage::fromData(editor.inFile(0)).size(), QSize(100, 50));
        QCOMPARE(editor.inFile(1), png(20));
    }
};

QTEST_MAIN(tst_Artwork)
#include "tst_Artwork.moc"
