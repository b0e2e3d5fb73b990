// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../Rows.h"

#include <tageditor/artwork/ArtworkVetting.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>

#include <QClipboard>
#include <QColorSpace>
#include <QMimeData>
#include <QPainter>
#include <QTemporaryDir>
#include <QThreadPool>

using namespace Qt::StringLiterals;
using namespace EncodedImages;

namespace {

constexpr QSize Stored(60, 40);
constexpr int Limit = 30; ///< pixels of the longer edge

/// With a mark at its stored top left, and in colours that are not those of a screen.
QImage sample()
{
    QImage image(Stored, QImage::Format_RGB32);
    image.setColorSpace(QColorSpace::DisplayP3);
    image.fill(QColor(40, 60, 80));
    QPainter(&image).fillRect(0, 0, 20, 20, QColor(200, 100, 50));
    return image;
}

QColor markInStandardColors()
{
    return QColorSpace(QColorSpace::DisplayP3)
        .transformationToColorSpace(QColorSpace::SRgb)
        .map(QColor(200, 100, 50));
}

QImage withoutProfile()
{
    QImage image = sample().convertedToColorSpace(QColorSpace::SRgb);
    image.setColorSpace({});
    return image;
}

/// Uncompressed true colour, from the top.
QByteArray tga()
{
    const QImage image = withoutProfile().convertToFormat(QImage::Format_RGB888).rgbSwapped();
    QByteArray bytes("\0\0\2\0\0\0\0\0\0\0\0\0\x3C\0\x28\0\x18\x20", 18);
    for (int row = 0; row < image.height(); ++row)
        bytes.append(reinterpret_cast<const char *>(image.constScanLine(row)), image.width() * 3);
    return bytes;
}

struct Format {
    const char *name;
    QByteArray bytes;
    QString mimeType;
    QString extension;
    QString cells; ///< identify, size, show, drop of a file, drop of bytes, paste, drag out, limit
};

class Well : public ZEVDragImageView {
public:
    Well()
    {
        resize(200, 200);
        setDelegate(&vetting);
        connect(this, &ZEVDragImageView::importWasRefused, this,
                [this](const QString &why) { reason = why; });
    }
    using ZEVDragImageView::pasteboardWriter;

    /// Reading, decoding, vetting, and decoding what that made of it.
    void settle()
    {
        constexpr int Steps = 5;
        for (int step = 0; step < Steps; ++step) {
            filePromiseQueue()->waitForDone();
            QThreadPool::globalInstance()->waitForDone();
            QCoreApplication::processEvents();
        }
    }

    /// What came of it; nothing but the reason where the well refused it at once.
    QString outcome(const QByteArray &wanted)
    {
        settle();
        if (!reason.isEmpty())
            return reason;
        return bitmapData() == wanted ? u"taken"_s : bitmapData().isNull() ? u"refused"_s : u"changed"_s;
    }

    ArtworkVetting vetting;
    QString reason;
};

std::unique_ptr<QMimeData> file(const QString &path)
{
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(path)});
    return data;
}

std::unique_ptr<QMimeData> bytesOf(const Format &format)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(format.mimeType, format.bytes);
    return data;
}

void drop(Well &well, const QMimeData &data)
{
    QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&well, &enter);
    QDropEvent event({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    if (enter.isAccepted())
        QApplication::sendEvent(&well, &event);
}

QString text(QSizeF size) { return u"%1x%2"_s.arg(size.width()).arg(size.height()); }

QString identified(const Format &format)
{
    const QString mimeType = ZEVImageIdentification::identificationWithData(format.bytes).mimeType();
    return mimeType.isEmpty() ? u"-"_s : mimeType.section(u'/', 1);
}

QString sizes(const Format &format)
{
    const ZEVImageDescription seen(format.bytes);
    return seen.size() == seen.shownSize() ? text(seen.size())
                                           : text(seen.size()) + u'>' + text(seen.shownSize());
}

QString shown(const Format &format)
{
    Well well;
    well.setBitmapData(format.bytes);
    return well.imageView()->image().isNull() ? well.dashView()->label().section(u'\n', 0, 0) : u"shown"_s;
}

QString pasted(const Format &format)
{
    Well well;
    QGuiApplication::clipboard()->setMimeData(bytesOf(format).release());
    well.paste();
    return well.outcome(format.bytes);
}

QString dropped(const Format &format, const QMimeData &data)
{
    Well well;
    drop(well, data);
    return well.outcome(format.bytes);
}

/// From the well, and from a view whose host gives only a name.
QString draggedOut(const Format &format)
{
    Well well;
    well.setBitmapData(format.bytes);
    if (well.imageView()->image().isNull())
        return u"-"_s;
    const auto writer = well.pasteboardWriter();
    ZEVPboardImageWriter other;
    other.setBitmapData(writer->bitmapData());
    other.setFileName(u"Cover"_s);
    return writer->bitmapData() == format.bytes ? writer->promisedFileName() + u' ' + other.promisedFileName()
                                                : u"changed"_s;
}

bool isMark(const QColor &color)
{
    const QColor mark = markInStandardColors();
    return std::abs(color.red() - mark.red()) + std::abs(color.green() - mark.green())
        + std::abs(color.blue() - mark.blue())
        < 30;
}

/// What the editor would save: its format and size, and where the mark is.
QString limited(const QMimeData &data)
{
    Well well;
    well.vetting.setLimit({Limit, 0});
    drop(well, data);
    well.settle();
    if (well.bitmapData().isNull())
        return u"-"_s;
    QImage image = QImage::fromData(well.bitmapData());
    const bool isStandard = !image.colorSpace().isValid() || image.colorSpace() == QColorSpace::SRgb;
    const QString place = isMark(image.pixelColor(4, 4)) ? u"left"_s
        : isMark(image.pixelColor(image.width() - 5, 4)) ? u"right"_s
                                                         : u"no mark"_s;
    return QStringList{identified({{}, well.bitmapData(), {}, {}, {}}), text(image.size()), place,
                       isStandard ? u"sRGB"_s : u"other colours"_s}
        .join(u' ');
}

} // namespace

class tst_ArtworkFormats : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Every format against all that is done with it, in the editor's own well.
    void whatBecomesOfEveryFormat()
    {
        const QImage turnedPicture = sample(), plain = withoutProfile();
        const QString taken = u"shown | taken | taken | taken | "_s;
        const QString refused = u"refused | refused | refused | - | -"_s;
        const QString unknown = u"- | 0x0 | No known image format | "_s;
        const Format formats[] = {
            {"JPEG", turned(turnedPicture, "JPG", 6), u"image/jpeg"_s, u"jpg"_s,
             u"jpeg | 60x40>40x60 | "_s + taken + u"Image.jpg Cover.jpg | jpeg 20x30 right sRGB"_s},
            {"PNG", turned(turnedPicture, "PNG", 6), u"image/png"_s, u"png"_s,
             u"png | 60x40>40x60 | "_s + taken + u"Image.png Cover.png | png 20x30 right sRGB"_s},
            {"TIFF", turned(turnedPicture, "TIFF", 6), u"image/tiff"_s, u"tiff"_s,
             u"tiff | 60x40>40x60 | "_s + taken + u"Image.tiff Cover.tiff | jpeg 20x30 right sRGB"_s},
            {"WebP", turned(plain, "WEBP", 6), u"image/webp"_s, u"webp"_s,
             u"webp | 60x40>40x60 | "_s + taken + u"Image.tiff Cover.webp | jpeg 20x30 right sRGB"_s},
            {"BMP", encoded(plain, "BMP"), u"image/bmp"_s, u"bmp"_s,
             u"bmp | 60x40 | "_s + taken + u"Image.bmp Cover.bmp | jpeg 30x20 left sRGB"_s},
            {"GIF", gif(60, 40, 1), u"image/gif"_s, u"gif"_s,
             u"gif | 60x40 | "_s + taken + u"Image.gif Cover.gif | jpeg 30x20 no mark sRGB"_s},
            {"AVIF", avif(60, 40), u"image/avif"_s, u"avif"_s,
             u"avif | 60x40 | No decoder for AVIF | "_s + refused},
            {"HEIC", avif(60, 40).replace("avif", "heic"), u"image/heic"_s, u"heic"_s,
             u"heic | 60x40 | No decoder for HEIC | "_s + refused},
            {"ICO", encoded(plain, "ICO"), u"image/vnd.microsoft.icon"_s, u"ico"_s, unknown + refused},
            {"TGA", tga(), u"image/x-tga"_s, u"tga"_s, unknown + refused},
            {"PPM", encoded(plain, "PPM"), u"image/x-portable-pixmap"_s, u"ppm"_s, unknown + refused},
            {"XPM", encoded(plain, "XPM"), u"image/x-xpixmap"_s, u"xpm"_s, unknown + refused},
        };
        QTemporaryDir folder;
        for (const Format &format : formats) {
            const QString path = folder.filePath(u"cover."_s + format.extension);
            QFile stored(path);
            QVERIFY(stored.open(QFile::WriteOnly));
            QVERIFY(stored.write(format.bytes) > 0);
            QVERIFY(stored.flush());
            const QString cells = QStringList{identified(format),
                                              sizes(format),
                                              shown(format),
                                              dropped(format, *file(path)),
                                              dropped(format, *bytesOf(format)),
                                              pasted(format),
                                              draggedOut(format),
                                              limited(*file(path))}
                                      .join(u" | "_s);
            if (qEnvironmentVariableIsSet("ZEV_REPORT"))
                std::printf("| %s | %s |\n", format.name, qPrintable(cells));
            COMPARE_ROW(format.name, cells, format.cells);
        }
    }
};

QTEST_MAIN(tst_ArtworkFormats)
#include "tst_ArtworkFormats.moc"
