// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "EncodedImages.h"

#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardItem.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QMimeData>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using ZEVPasteboardRawBitmapData::rawImageData;

namespace {

using Offers = QList<std::pair<QString, QByteArray>>;

QByteArray taken(const Offers &offers, const QImage &pixels = {})
{
    QMimeData data;
    for (const auto &[format, bytes] : offers)
        data.setData(format, bytes);
    if (!pixels.isNull())
        data.setImageData(pixels);
    return rawImageData(ZEVPasteboard(&data));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

std::shared_ptr<ZEVPboardImageWriter> writer(const QByteArray &data, const QString &name,
                                             QStringView pasteboard)
{
    auto writer = std::make_shared<ZEVPboardImageWriter>();
    writer->setBitmapData(data);
    writer->setFileName(name);
    writer->setPasteboardName(pasteboard.toString());
    return writer;
}

/// A folder with one file that is somebody's already.
class Folder {
public:
    Folder()
    {
        QFile file(path(u"co#ver.jpg"_s));
        if (file.open(QFile::WriteOnly))
            file.write("file");
    }

    QString path(const QString &name) const { return m_folder.path() + u'/' + name; }
    QByteArray address(const QString &name) const { return QUrl::fromLocalFile(path(name)).toEncoded(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

class tst_ZEVPasteboard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noTypeIsToldOfWhatIsNoPicture()
    {
        const auto none = writer("no picture", u"x"_s, u"board");
        QVERIFY(!none->mimeTypesForType(u"public.image").contains(QString()));
    }

    void whatIsTakenFromAPasteboard()
    {
        const Folder folder;
        mkfifo(QFile::encodeName(folder.path(u"pipe"_s)), 0600);
        const QString links = u"text/uri-list"_s, png = u"image/png"_s, jpeg = u"image/jpeg"_s,
                      webp = u"image/webp"_s;
        const QByteArray file = folder.address(u"co#ver.jpg"_s);
        const std::tuple<const char *, Offers, QByteArray> rows[] = {
            {"a file beside a picture", {{png, "p"}, {links, file}}, "file"},
            {"this machine's name",
             {{links, "file://" + QSysInfo::machineHostName().toUtf8() + file.mid(7)}},
             "file"},
            {"another machine", {{png, "p"}, {links, "file://elsewhere.example/etc/hosts"}}, {}},
            {"a file that is gone", {{png, "p"}, {links, folder.address(u"gone"_s)}}, {}},
            {"a folder", {{links, folder.address({})}}, {}},
            {"a pipe", {{links, folder.address(u"pipe"_s)}}, {}},
            {"a picture with its link", {{links, "https://example.org/a.png"}, {jpeg, "j"}}, "j"},
            {"a link alone", {{links, "https://example.org/a.png"}}, {}},
            {"the general type first", {{png, "p"}, {u"public.image"_s, "i"}}, "i"},
            {"PNG before TIFF", {{u"image/tiff"_s, "t"}, {png, "p"}}, "p"},
            {"TIFF before JPEG", {{jpeg, "j"}, {u"image/tiff"_s, "t"}}, "t"},
            {"JPEG before GIF", {{u"image/gif"_s, "g"}, {jpeg, "j"}}, "j"},
            {"BMP by another name", {{u"image/x-MS-bmp"_s, "b"}}, "b"},
            {"offered, but not there", {{png, ""}, {jpeg, "j"}}, "j"},
            {"WebP alone", {{webp, "w"}}, "w"},
            {"WebP beside BMP", {{webp, "w"}, {u"image/bmp"_s, "b"}}, "b"},
            {"a drawing", {{u"image/svg+xml"_s, "<svg/>"}}, {}},
        };
        for (const auto &[name, offers, bytes] : rows)
            COMPARE_ROW(name, taken(offers), bytes);
        const QImage pixels = EncodedImages::picture(5, 4);
        QCOMPARE(QImage::fromData(taken({}, pixels), "PNG").convertToFormat(pixels.format()), pixels);
        QCOMPARE(taken({{jpeg, "j"}}, pixels), "j"); // pixels are for want of bytes
        QMimeData data;
        data.setImageData(pixels);
        const ZEVPasteboard dragged(&data);
        QVERIFY(dragged.types().contains(u"public.png"_s));
        QVERIFY(dragged.dataForType(u"public.tiff").isNull());
        data.setData(jpeg, "j");
        QVERIFY(!dragged.types().contains(u"public.png"_s));
    }

    void addressesAreHandedOver()
    {
        auto data = std::make_unique<QMimeData>();
        const auto link = u"https://example.org/ü.png\nA title"_s;
        data->setData(u"text/x-moz-url"_s, {reinterpret_cast<const char *>(link.utf16()), link.size() * 2});
        const ZEVPasteboard pasteboard(data.get());
        QCOMPARE(pasteboard.URL(), QUrl(u"https://example.org/ü.png"_s));
        data->setData(u"text/uri-list"_s, "# drag\r\nfile:///a\r\nhttps://b.example\r\n");
        QCOMPARE(pasteboard.URLs(), QList<QUrl>({QUrl(u"file:///a"_s), QUrl(u"https://b.example"_s)}));
        data.reset();
        QVERIFY(pasteboard.types().isEmpty());
        QVERIFY(!pasteboard.URL().isValid()); // the drag has gone
    }

    void whatTheWriterOffers()
    {
        const QByteArray jpeg = EncodedImages::encoded(2, 2, "JPG");
        const std::tuple<QString, QByteArray, QString> rows[] = {
            {u"AC/DC Cover"_s, jpeg, u"AC:DC Cover.jpg"_s},
            {u"cover.png"_s, jpeg, u"cover.png"_s},
            {u"Mr. Blue"_s, jpeg, u"Mr. Blue.jpg"_s},
            {u"../../etc"_s, jpeg, u"..:..:etc"_s},
            {u"Cover"_s, "?", u"Cover"_s},
            {u".."_s, jpeg, u"...jpg"_s},
            {u"Cover"_s, {}, u"Cover"_s},
            {QString(130, u'\u0436'), jpeg, QString(125, u'\u0436') + u".jpg"_s}, // 255 bytes, not 260
        };
        for (const auto &[name, data, promised] : rows)
            COMPARE_ROW(name, writer(data, name, u"")->promisedFileName(), promised);
        const auto object = writer(jpeg, u"a"_s, ZEVPasteboard::DragName);
        const QString content = u"com.apple.pasteboard.promised-file-content-type"_s;
        const QString file = u"com.apple.pasteboard.promised-file-url"_s;
        QCOMPARE(object->writableTypesForPasteboard(), QStringList({content, file, u"public.image"_s}));
        QCOMPARE(object->pasteboardPropertyListForType(u"Public.Image"), jpeg);
        QCOMPARE(object->pasteboardPropertyListForType(content), "public.image");
        QVERIFY(object->pasteboardPropertyListForType(u"public.png").isNull());
        QVERIFY(object->pasteboardPropertyListForType(file).isNull()); // nobody says where

        const ZEVPasteboardItem item(object, object->pasteboardName());
        QStringList formats{u"text/uri-list"_s, u"image/jpeg"_s, u"public.image"_s};
        if (QGuiApplication::platformName() == u"xcb")
            formats = QStringList{u"XdndDirectSave0"_s} + formats.sliced(1);
        QCOMPARE(item.formats(), formats);
        for (const QString &format : formats.sliced(1))
            COMPARE_ROW(format, item.data(format), jpeg);
    }

    void theReceiverNamesTheFile()
    {
        const std::tuple<QString, QByteArray, QString> rows[] = {
            {u"new %251.jpg"_s, "S", u"new %1.jpg"_s},
            {u"as the receiver says"_s, "S", u"as the receiver says"_s},
            {u"co%23ver.jpg"_s, "S", u"co#ver 2.jpg"_s},
            {u"dangling"_s, "S", u"dangling 2."_s}, // kept: the dot
            {u"no folder/a.jpg"_s, "E", {}},
            {u"./"_s, "E", {}},
            {u"file://elsewhere.example/tmp/a.jpg"_s, "F", {}},
            {u"sftp://localhost/tmp/a.jpg"_s, "F", {}},
            {u":Cover.jpg"_s, "F", {}}, // the receiver has said nothing
        };
        int errors = 0;
        const auto before = ZEVErrorPresentation::setPresenter([&](const ZEVError &) { ++errors; });
        for (const auto &[name, answer, file] : rows) {
            const Folder folder;
            QFile::link(folder.path(u"nowhere"_s), folder.path(u"dangling"_s));
            const auto object = writer("\xFF.bytes", u"Cover"_s, ZEVPasteboard::DragName);
            const QByteArray address =
                name.contains(u':') ? name.toUtf8() : folder.address({}) + name.toUtf8();
            const ZEVPasteboardItem item(object, object->pasteboardName());
            COMPARE_ROW(name, item.answerToDirectSave(address), answer);
            // Who is told to make the file gets the bytes; others would take them and leave the promise.
            COMPARE_ROW(name, item.data(u"application/octet-stream"_s),
                        answer == "F" ? object->bitmapData() : QByteArray());
            if (!file.isEmpty())
                COMPARE_ROW(name, contents(folder.path(file)), object->bitmapData());
            COMPARE_ROW(name, contents(folder.path(u"co#ver.jpg"_s)), QByteArray("file"));
        }
        QCOMPARE(errors, 0); // an alert in the middle of a drop would block it
        QCoreApplication::processEvents();
        ZEVErrorPresentation::setPresenter(before);
        QCOMPARE(errors, 1);
    }

    void aCopiedFileIsWrittenOnceAndForTheUserOnly()
    {
        ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
        const auto object = writer(EncodedImages::encoded(2, 2, "PNG"), u"Cover"_s, general.name());
        QVERIFY(general.writeObject(object));
        const QList<QUrl> urls = general.URLs();
        QCOMPARE(urls, general.URLs());
        const QFileInfo file(urls.value(0).toLocalFile());
        QCOMPARE(file.fileName(), u"Cover.png");
        QVERIFY(!QFile::permissions(file.path())
                     .testAnyFlags(QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther));
        QCOMPARE(rawImageData(general), object->bitmapData());
    }
};

QTEST_MAIN(tst_ZEVPasteboard)
#include "tst_ZEVPasteboard.moc"
