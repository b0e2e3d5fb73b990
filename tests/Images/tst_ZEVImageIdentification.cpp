// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "EncodedImages.h"

#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace ZEVDataBitmapData;
using Identification = ZEVImageIdentification;

namespace {

QString described(QByteArrayView data)
{
    return QStringList{QString::number(bitmapDataImageFileType(data)), bitmapImageType(data),
                       bitmapImageMimeType(data).value_or(u"nil"_s),
                       bitmapDataImageFileExtention(data).value_or(u"nil"_s),
                       bitmapImageFileUTI(data).value_or(u"nil"_s)}
        .join(u' ');
}

/// What a camera writes: a thumbnail with a frame of its own in a segment before the picture's.
QByteArray jpegWithThumbnail()
{
    const QByteArray thumbnail("\xFF\xE1\0\x15"
                               "Exif\0\0\xFF\xD8\xFF\xC0\0\x11\x08\0\x10\0\x10\xFF\xD9",
                               23);
    return EncodedImages::encoded(300, 200, "JPG").insert(2, thumbnail);
}

QByteArray extendedWebp()
{
    return QByteArray("RIFF\x16\0\0\0WEBPVP8X\x0A\0\0\0\0\0\0\0", 24) + QByteArray("\x3F\1\0\x8F\0\1", 6);
}

QByteArray losslessWebp(quint32 width, quint32 height)
{
    QByteArray bytes("RIFF\x11\0\0\0WEBPVP8L\x05\0\0\0\x2F\0\0\0\0\0", 26);
    qToLittleEndian((width - 1) | (height - 1) << 14, bytes.data() + 21);
    return bytes;
}

} // namespace

class tst_ZEVImageIdentification : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstByteDecides()
    {
        const std::pair<QByteArray, QString> rows[] = {
            {"MM", u"0 TIFF image/tiff tiff public.tiff"_s},
            {"II", u"0 TIFF image/tiff tiff public.tiff"_s},
            {"Banana", u"1 BMP image/bmp bmp com.microsoft.bmp"_s},
            {"G", u"2 GIF image/gif gif com.compuserve.gif"_s},
            {"\xFF", u"3 JPEG image/jpeg jpg public.jpeg"_s},
            {"\x89", u"4 PNG image/png png public.png"_s},
            {"\xAB\x89", u"-1 Unknown Type (0xab) nil nil nil"_s},
            {QByteArray(1, '\0'), u"-1 Unknown Type (0x0) nil nil nil"_s},
            {{}, u"-1 Unknown Type (0x0) nil nil nil"_s},
        };
        const QByteArray type = "NSData (BitmapData) : Unknown image file type : 0xab";
        const QByteArray extension = "NSData (BitmapData) : Unknown image file type (0xab)";
        for (const QByteArray &line : {type, type, extension, extension})
            QTest::ignoreMessage(QtWarningMsg, line);
        for (const auto &[data, text] : rows)
            COMPARE_ROW(data, described(data), text);
    }

    void whatTheBytesReallyAre()
    {
        QByteArray topDown = EncodedImages::encoded(37, 21, "BMP");
        qToLittleEndian<qint32>(-21, topDown.data() + 22);
        const QByteArray bigTiff("MM\0*\0\0\0\x0A\0\0\0\2\1\0\0\3\0\0\0\1\0\x25\0\0\1\1\0\4\0\0\0\1\0\1\0\0",
                                 36);
        const QByteArray endlessPng("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\xFF\xFF\xFF\xFF\0\0\0\1", 24);
        std::vector<std::tuple<QByteArray, QString, QSize>> rows{
            {topDown, u"image/bmp"_s, {37, 21}},
            {jpegWithThumbnail(), u"image/jpeg"_s, {300, 200}},
            {EncodedImages::gif(640, 480, 1), u"image/gif"_s, {640, 480}},
            {extendedWebp(), u"image/webp"_s, {320, 65680}},
            {losslessWebp(300, 16384), u"image/webp"_s, {300, 16384}},
            {EncodedImages::avif(4000, 3000), u"image/avif"_s, {4000, 3000}},
            {EncodedImages::avif(4000, 3000).replace("avif", "heic"), u"image/heic"_s, {4000, 3000}},
            {bigTiff, u"image/tiff"_s, {37, 65536}},
            {endlessPng, u"image/png"_s, {}}, // more than an int
        };
        for (const char *format : {"png", "jpeg", "bmp", "tiff", "webp"})
            rows.emplace_back(EncodedImages::encoded(37, 21, format), u"image/"_s + QLatin1String(format),
                              QSize(37, 21));
        for (const char *text :
             {"Banana", "BM, as text", "II, as text", "GIF88a", "\xFF\xD8", "RIFF1234WAVE", ""})
            rows.emplace_back(text, QString(), QSize());
        for (const auto &[data, mimeType, size] : rows) {
            const auto found = Identification::identificationWithData(data);
            COMPARE_ROW(data.first(std::min<qsizetype>(data.size(), 12)), found.mimeType(), mimeType);
            COMPARE_ROW(mimeType, found.pixelSize, size);
        }
    }

    /// The sanitizers see what is read past the end.
    void aHeaderMayEndAnywhere()
    {
        for (const QByteArray &whole :
             {jpegWithThumbnail(), EncodedImages::encoded(37, 21, "TIFF"), extendedWebp(),
              EncodedImages::avif(40, 30), EncodedImages::gif(9, 9, 1)}) {
            const auto size = Identification::identificationWithData(whole).pixelSize;
            for (qsizetype length = 0; length < std::min<qsizetype>(whole.size(), 4000); ++length) {
                const std::vector<char> part(whole.begin(), whole.begin() + length);
                const auto found = Identification::identificationWithData({part.data(), length});
                QVERIFY(found.pixelSize == size || !found.pixelSize.isValid());
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_ZEVImageIdentification)
#include "tst_ZEVImageIdentification.moc"
