// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "EncodedImages.h"

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace EncodedImages;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int Slowness = 4;
#else
constexpr int Slowness = 1;
#endif

/// Progressive, with thousands of scans over it.
QByteArray endlessJpeg()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "JPG");
    writer.setProgressiveScanWrite(true);
    writer.write(QImage(2000, 2000, QImage::Format_Grayscale8));
    const qsizetype scan = bytes.indexOf("\xFF\xDA");
    return bytes.chopped(2) + bytes.sliced(scan).chopped(2).repeated(500) + "\xFF\xD9";
}

QByteArray hugeJpeg()
{
    const QByteArray bytes = encoded(300, 300, "JPG");
    return QByteArray(bytes).replace(bytes.indexOf("\xFF\xC0") + 5, 4, QByteArray(4, '\xFF'));
}

/// Comments as large as they may be, a hundred times.
QByteArray talkativeJpeg()
{
    return encoded(300, 300, "JPG").insert(2, ("\xFF\xFE\xFF\xFF" + QByteArray(65533, 'x')).repeated(100));
}

QByteArray pngChunk(const QByteArray &content)
{
    return bigEndian(quint32(content.size() - 4)) + content + bigEndian(pngChecksum(content));
}

/// A chunk of text that is 16 MB when it is inflated.
QByteArray talkativePng()
{
    return encoded(300, 300, "PNG")
        .insert(33, pngChunk(QByteArray("zTXtA\0\0", 7) + qCompress(QByteArray(16 << 20, ' ')).sliced(4)));
}

/// A directory that says it has 65535 entries.
QByteArray talkativeTiff()
{
    return QByteArray("II*\0\x08\0\0\0\xFF\xFF", 10)
        + QByteArray("\x0F\1\2\0\xFF\xFF\xFF\xFF\0\0\0\0", 12).repeated(65535);
}

/// Grey four times over, as printers have it: a scan for each ink, in the manner of Adobe (inverted).
QByteArray cmykJpeg(int edge)
{
    QImage grey(edge, edge, QImage::Format_Grayscale8);
    grey.fill(200);
    const QByteArray bytes = encoded(grey, "JPG");
    const qsizetype frame = bytes.indexOf("\xFF\xC0"), scan = bytes.indexOf("\xFF\xDA");
    QByteArray inks, scans;
    for (char ink = 1; ink <= 4; ++ink) {
        inks += ink + QByteArray("\x11\0", 2);
        scans += bytes.sliced(scan).chopped(2).replace(5, 1, QByteArray(1, ink));
    }
    const QByteArray adobe("\xFF\xEE\0\x0E"
                           "Adobe\0d\0\0\0\0\0",
                           16);
    return bytes.first(2) + adobe + bytes.sliced(2, frame - 2) + QByteArray("\xFF\xC0\0\x14", 4)
        + bytes.sliced(frame + 4, 5) + '\4' + inks + bytes.sliced(frame + 13, scan - frame - 13) + scans
        + "\xFF\xD9";
}

constexpr int LargeEdge = 5900; ///< more than is decoded as a whole

/// A small picture that says it is large: what is refused by its header needs nothing else.
QByteArray enlarged(QByteArray bytes, qsizetype width, qsizetype height)
{
    qToLittleEndian(LargeEdge, bytes.data() + width);
    qToLittleEndian(LargeEdge, bytes.data() + height);
    return bytes;
}

QByteArray largeTiff()
{
    const QByteArray bytes = encoded(16, 16, "TIFF");
    const auto valueOf = [&](const char *tag) { return bytes.indexOf(QByteArray(tag, 2) + '\3') + 8; };
    return enlarged(bytes, valueOf("\0\1"), valueOf("\1\1"));
}

/// With rows of a length that nobody knows beforehand.
QByteArray largeBmp()
{
    return enlarged(encoded(QImage(16, 16, QImage::Format_Indexed8), "BMP"), 18, 22).replace(30, 1, "\1");
}

QByteArray largeWebp()
{
    const QByteArray edge = littleEndian(LargeEdge - 1).first(3);
    return QByteArray("RIFF\x16\0\0\0WEBPVP8X\x0A\0\0\0\0\0\0\0", 24) + edge + edge;
}

/// Of the kinds that Qt does not write, too.
QByteArray largePng(char colorType, char depth, int bytesInPixel = 0)
{
    const QByteArray rows((LargeEdge * bytesInPixel + 1) * LargeEdge, '\0');
    const QByteArray size = bigEndian(LargeEdge) + bigEndian(LargeEdge);
    const QByteArray header = "IHDR" + size + depth + colorType + QByteArray(3, '\0');
    return QByteArray("\x89PNG\r\n\x1A\n") + pngChunk(header)
        + (colorType == 3 ? pngChunk("PLTE" + QByteArray(3, '\0')) : QByteArray())
        + pngChunk("IDAT" + qCompress(rows, 1).sliced(4)) + pngChunk("IEND");
}

/// Since the last call: the system's own count goes on from that of the parent's.
long peakKilobytes()
{
    QFile status(u"/proc/self/status"_s), reset(u"/proc/self/clear_refs"_s);
    if (!status.open(QFile::ReadOnly) || !reset.open(QFile::WriteOnly | QFile::Unbuffered))
        return 0;
    const QByteArray text = status.readAll();
    reset.write("5");
    return text.sliced(text.indexOf("VmHWM:") + 6).split('k').first().trimmed().toLong();
}

struct Bomb {
    QString name;
    QByteArray bytes;
    QSize size;
};

QList<Bomb> bombs()
{
    QList<Bomb> bombs{
        {u"nothing"_s, {}, {0, 0}},
        {u"8000 x 8000"_s, encoded(QImage(8000, 8000, QImage::Format_Mono), "PNG"), {8000, 8000}},
        {u"huge JPEG"_s, hugeJpeg(), {65535, 65535}},
        {u"huge GIF"_s, gif(65535, 65535, 1), {65535, 65535}},
        {u"cut GIF"_s, gif(300, 300, 1).chopped(3), {0, 0}},
        {u"100,000 frames"_s, gif(3, 2, 100'000), {3, 2}},
        {u"thousands of scans"_s, endlessJpeg(), {2000, 2000}},
        {u"huge comments"_s, talkativeJpeg(), {300, 300}},
        {u"a huge text"_s, talkativePng(), {300, 300}},
        {u"a huge directory"_s, talkativeTiff(), {0, 0}},
        {u"16 bits a channel"_s, encoded(QImage(1200, 1200, QImage::Format_RGBA64), "PNG"), {1200, 1200}},
        {u"the signature of another"_s, "\x89PNG\r\n\x1A\n" + encoded(300, 300, "JPG"), {0, 0}},
    };
    bombs.append({u"CMYK"_s, cmykJpeg(1200), {1200, 1200}});
    bombs.append(
        {u"16 bits, TIFF"_s, encoded(QImage(1200, 1200, QImage::Format_RGBA64), "TIFF"), {1200, 1200}});
    const std::pair<const char *, QByteArray> larges[] = {
        {"large PNG", largePng(2, 8, 3)},
        {"large PNG, grey and alpha", largePng(4, 8, 2)},
        {"large PNG, grey", largePng(0, 8)},
        {"large PNG, palette", largePng(3, 8)},
        {"large PNG, 16 bits", largePng(2, 16)},
        {"large TIFF", largeTiff()},
        {"large BMP", largeBmp()},
        {"large GIF", gif(LargeEdge, LargeEdge, 1)},
        {"large WebP", largeWebp()},
    };
    for (const auto &[name, bytes] : larges)
        bombs.append({QString::fromLatin1(name), bytes, {LargeEdge, LargeEdge}});
    for (const char *format : {"JPG", "PNG", "BMP", "TIFF", "WEBP", "GIF"}) {
        const QByteArray whole = qstrcmp(format, "GIF") == 0 ? gif(300, 300, 1) : encoded(300, 300, format);
        bombs.append({u"whole "_s + QString::fromLatin1(format), whole, {300, 300}});
        bombs.append({u"half "_s + QString::fromLatin1(format), whole.first(whole.size() / 2), {0, 0}});
    }
    return bombs;
}

} // namespace

class tst_ZEVImageDescription : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_runtime;
    QList<ZEVError> m_errors;
    const ZEVImageDescription m_png{encoded(9, 9, "PNG")};

    QString folder() const
    {
        return ZEVImageDescription::quickLookTemporaryDirectoryURL(false).toLocalFile();
    }

private Q_SLOTS:
    void initTestCase()
    {
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(m_runtime.filePath(u"defaults.ini"_s), QSettings::IniFormat));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
        ZEVErrorPresentation::setPresenter([this](const ZEVError &error) { m_errors.append(error); });
    }

    void init()
    {
        m_errors.clear();
        ZEVImageDescription::cleanupTemporaryDirectory();
        ZEVPreviewPanel::sharedPreviewPanel()->show();
    }

    void whatADescriptionTells()
    {
        QImage image = picture(600, 600);
        image.setDotsPerMeterX(5669); // 144 dots an inch
        const ZEVImageDescription jpeg(encoded(image, "JPG"));
        QCOMPARE(jpeg.size(), QSizeF(600, 600));
        QVERIFY(jpeg.imageDescription().startsWith(u"600\u2006×\u2006600 px, JPEG, "_s));
        QCOMPARE(ZEVImageDescription("Banana").imageDescription(), u"0\u2006×\u20060 px, BMP, 6 bytes"_s);
    }

    /// Where the corners go, by the tag Orientation of TIFF 6.0. Red lies at the stored top left, blue right of
    /// it.
    void everyPictureStandsUpright()
    {
        QImage stored(48, 32, QImage::Format_RGB32);
        stored.fill(Qt::white);
        QPainter painter(&stored);
        painter.fillRect(0, 0, 16, 16, Qt::red);
        painter.fillRect(32, 0, 16, 16, Qt::blue);
        painter.end();
        enum { TopLeft, TopRight, BottomLeft, BottomRight };
        constexpr std::pair<int, int> corners[] = {{TopLeft, TopRight},       {TopRight, TopLeft},
                                                   {BottomRight, BottomLeft}, {BottomLeft, BottomRight},
                                                   {TopLeft, BottomLeft},     {TopRight, BottomRight},
                                                   {BottomRight, TopRight},   {BottomLeft, TopLeft}};
        const auto isAt = [](const QImage &image, int corner, const QColor &color) {
            const QPoint place(corner % 2 == 0 ? 4 : image.width() - 5, corner < 2 ? 4 : image.height() - 5);
            const QColor seen = image.pixelColor(place);
            return std::abs(seen.red() - color.red()) + std::abs(seen.blue() - color.blue()) < 40;
        };
        for (const char *format : {"JPG", "PNG", "WEBP", "TIFF"}) {
            for (char orientation = 1; orientation <= 8; ++orientation) {
                const ZEVImageDescription seen(turned(stored, format, orientation));
                const QByteArray row = QByteArray(format) + ' ' + QByteArray::number(orientation);
                const QSizeF shown = orientation < 5 ? QSizeF(48, 32) : QSizeF(32, 48);
                COMPARE_ROW(row, seen.size(), QSizeF(48, 32));
                COMPARE_ROW(row, seen.shownSize(), shown);
                COMPARE_ROW(row, QSizeF(seen.image().size()), shown);
                const auto [red, blue] = corners[orientation - 1];
                QVERIFY2(isAt(seen.image(), red, Qt::red), row.constData());
                QVERIFY2(isAt(seen.image(), blue, Qt::blue), row.constData());
            }
        }
    }

    void whatIsSaidOfPicturesThatAreNotWhole()
    {
        QBuffer buffer;
        QImageWriter writer(&buffer, "JPG");
        writer.setProgressiveScanWrite(true);
        QVERIFY(writer.write(picture(300, 300)));
        const QByteArray jpeg = encoded(300, 300, "JPG"), progressive = buffer.data();
        const QByteArray large = encoded(QImage(6000, 6000, QImage::Format_Grayscale8), "JPG");
        const std::tuple<const char *, QByteArray, QSize, QSize, QString> rows[] = {
            {"whole", jpeg, {300, 300}, {300, 300}, {}},
            {"without its end marker", jpeg.chopped(2), {300, 300}, {300, 300}, {}},
            {"the same, progressive", progressive.chopped(2), {300, 300}, {300, 300}, {}},
            {"cut", jpeg.chopped(40), {0, 0}, {0, 0}, u"damaged"_s},
            {"cut, progressive", progressive.chopped(40), {0, 0}, {0, 0}, u"damaged"_s},
            {"36 million pixels", large, {6000, 6000}, {3000, 3000}, {}},
            {"many frames", gif(9, 8, 3), {9, 8}, {9, 8}, u"animated"_s},
            {"no decoder", avif(4000, 3000), {4000, 3000}, {0, 0}, u"no decoder for AVIF"_s},
            {"a text", "Banana", {0, 0}, {0, 0}, u"no known image format"_s},
        };
        for (const auto &[name, bytes, size, shown, remark] : rows) {
            const ZEVImageDescription seen(bytes);
            COMPARE_ROW(name, seen.size(), QSizeF(size));
            COMPARE_ROW(name, seen.image().size(), shown);
            COMPARE_ROW(name, seen.remark(), remark);
        }
    }

    /// A smaller picture stands for the whole where nobody sees the difference, and nowhere else.
    void noMoreIsDecodedThanIsShown()
    {
        QImage stored(600, 400, QImage::Format_RGB32);
        QLinearGradient shade(0, 0, 600, 400);
        shade.setColorAt(1, Qt::red);
        QPainter(&stored).fillRect(stored.rect(), shade);
        QPainter(&stored).fillRect(23, 27, 301, 153, Qt::white);
        const QSizeF room(40, 60);
        const std::tuple<const char *, QByteArray, QSizeF, bool> rows[] = {
            {"a large JPEG", turned(stored, "JPG", 6), room, true},
            {"in more room than was said", turned(stored, "JPG", 6), room * 2, false},
            {"a JPEG that is not much larger", turned(stored.scaled(120, 80), "JPG", 6), room, false},
            {"a PNG", turned(stored, "PNG", 6), room, false},
        };
        for (const auto &[name, bytes, size, isOther] : rows) {
            const ZEVImageDescription whole(bytes), seen(bytes, room.toSize());
            const QImage wanted = ZEVImageCrop::imageScaledToFitSize(whole.image(), size);
            const QImage shown = seen.imageScaledToFitSize(size);
            COMPARE_ROW(name, shown != wanted, isOther);
            COMPARE_ROW(name, shown.size(), wanted.size());
            qint64 difference = 0;
            for (int y = 0; y < wanted.height(); ++y) {
                for (int x = 0; x < wanted.width(); ++x)
                    difference += std::abs(qGreen(wanted.pixel(x, y)) - qGreen(shown.pixel(x, y)));
            }
            QVERIFY2(difference < wanted.width() * wanted.height(), name);
            COMPARE_ROW(name, seen.shownSize(), whole.shownSize());
            QVERIFY2(seen.image() == whole.image(), name); // when somebody asks for it
        }
    }

    void coloursAreThoseOfTheProfile()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(QColor(200, 100, 50));
        const QColorSpace wide = QColorSpace::DisplayP3;
        const QColor wanted = wide.transformationToColorSpace(QColorSpace::SRgb).map(QColor(200, 100, 50));
        QVERIFY(wanted.red() > 205);
        image.setColorSpace(wide);
        for (const char *format : {"JPG", "PNG", "TIFF"}) {
            const QColor seen = ZEVImageDescription(encoded(image, format)).image().pixelColor(4, 4);
            QVERIFY2(std::abs(seen.red() - wanted.red()) < 4, format);
            QVERIFY2(std::abs(seen.blue() - wanted.blue()) < 4, format);
        }
        const QColor inks = ZEVImageDescription(cmykJpeg(16)).image().pixelColor(4, 4);
        QVERIFY(std::abs(inks.red() - 200 * 200 / 255) < 4);
        QVERIFY(inks.red() == inks.blue());
    }

    /// A disk that takes nothing more leaves no file under the name, and somebody is told.
    void aFullDiskLeavesNoHalfPreview()
    {
        const QTemporaryDir disk;
        if (geteuid() != 0 || mount("none", qPrintable(disk.path()), "tmpfs", 0, "size=64k,mode=700") < 0)
            QSKIP("No right to mount a volume");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(disk.path()));
        QVERIFY(ZEVImageDescription::quickLookTemporaryDirectoryURL(true).isValid());
        QFile filler(disk.filePath(u"filler"_s));
        QVERIFY(filler.open(QFile::WriteOnly | QFile::Unbuffered));
        while (filler.write(QByteArray(1024, 'x')) > 0) { }
        for (const int size : {1, 8'000, 16'384, 40'000}) {
            m_errors.clear();
            QVERIFY2(!ZEVImageDescription(QByteArray(size, 'B')).previewItemURL().isValid(),
                     qPrintable(QString::number(size)));
            QTRY_COMPARE(m_errors.size(), 1);
            QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList());
        }
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
        filler.close();
        QCOMPARE(umount(qPrintable(disk.path())), 0);
    }

    /// Each in a process of its own, which is killed when it takes more than half a second of processor time.
    void bombsTakeLittleTimeAndMemory()
    {
        for (const Bomb &bomb : bombs()) {
            QFile file(m_runtime.filePath(u"bomb"_s));
            QVERIFY(file.open(QFile::WriteOnly));
            QVERIFY(file.write(bomb.bytes) == bomb.bytes.size());
            QVERIFY(file.flush());
            qputenv("ZEV_BOMB", QFile::encodeName(file.fileName()));
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {u"describeBomb"_s});
            QVERIFY(process.waitForFinished());
            const QString size = u"%1 x %2,"_s.arg(bomb.size.width()).arg(bomb.size.height());
            const QByteArray said = bomb.name.toUtf8() + ": " + process.readAll();
            QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                     said.constData());
            QVERIFY2(said.contains(size.toUtf8()), said.constData());
            if (qEnvironmentVariableIsSet("ZEV_REPORT"))
                std::printf("%-26s %s\n", qPrintable(bomb.name),
                            said.sliced(said.indexOf(size.toUtf8())).split('\n').first().constData());
        }
        qunsetenv("ZEV_BOMB");
    }

    void describeBomb()
    {
        QFile file(qEnvironmentVariable("ZEV_BOMB"));
        if (!file.open(QFile::ReadOnly))
            return;
        const QByteArray bytes = file.readAll();
        QImageReader::setAllocationLimit(0); // a host may have lifted the process's limit
        rusage before, after;
        getrusage(RUSAGE_SELF, &before);
        peakKilobytes();
        const long held = peakKilobytes(); // what is there to begin with
        const itimerval limit{{0, 0}, {Slowness / 2, Slowness % 2 * 500'000}};
        setitimer(ITIMER_PROF, &limit, nullptr);
        const ZEVImageDescription description(bytes);
        getrusage(RUSAGE_SELF, &after);
        const long kilobytes = peakKilobytes() - held;
        const auto milliseconds = [](const rusage &usage) {
            return usage.ru_utime.tv_sec * 1000 + usage.ru_utime.tv_usec / 1000;
        };
        std::printf("%.0f x %.0f, %ld KB, %ld ms, %s\n", description.size().width(),
                    description.size().height(), kilobytes, milliseconds(after) - milliseconds(before),
                    qPrintable(description.remark()));
        QVERIFY(kilobytes < 256 * 1024);
    }

    void aCopyOffersTheBytesAndATiff()
    {
        const ZEVImageDescription description(encoded(6, 5, "JPG"));
        description.placeOnGeneralPasteboard();
        const ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
        QCOMPARE(general.types().first(3),
                 QStringList({u"public.jpeg"_s, u"public.image"_s, u"public.tiff"_s}));
        QCOMPARE(ZEVPasteboardRawBitmapData::rawImageData(general), description.bitmapData());
        QCOMPARE(QImage::fromData(general.dataForType(ZEVUniformType::TIFF), "TIFF").size(), QSize(6, 5));
    }

    void aPreviewFileIsWrittenOnceAndMended()
    {
        const QString path = m_png.previewItemURL().toLocalFile();
        QCOMPARE(m_png.previewItemTitle(), m_png.imageDescription());
        QVERIFY(path.endsWith(u".png"));
        QVERIFY(QFile(path).setPermissions(QFile::ReadOwner));
        QCOMPARE(ZEVImageDescription(m_png.bitmapData()).previewItemURL().toLocalFile(), path);
        QCOMPARE(QFile::permissions(path) & QFile::WriteOwner, QFile::Permissions()); // not written anew
        QVERIFY(QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::resize(path, 5));
        QCOMPARE(m_png.previewItemURL().toLocalFile(), path);
        QCOMPARE(QFileInfo(path).size(), m_png.bitmapData().size());
        ZEVPreviewPanel::sharedPreviewPanel()->hide();
        QVERIFY(!m_png.previewItemURL().isValid());
        QVERIFY(!m_png.previewItemTitle());
    }

    void aPreviewFolderThatIsNotOursIsNotUsed()
    {
        const QTemporaryDir elsewhere;
        const QString others = elsewhere.filePath(u"others"_s);
        QVERIFY(QFile(others).open(QFile::WriteOnly));
        QVERIFY(QFile::link(elsewhere.path(), folder()));
        QVERIFY(!m_png.previewItemURL().isValid());
        QTRY_COMPARE(m_errors.size(), 1);
        ZEVImageDescription::cleanupTemporaryDirectory();
        QVERIFY(QFileInfo::exists(others));
        QVERIFY(QFile::remove(folder()));
        QVERIFY(QDir().mkdir(folder()));
        QVERIFY(QFile::setPermissions(folder(), QFile::Permissions(0x7777)));
        QVERIFY(m_png.previewItemURL().isValid());
        QCOMPARE(QFile::permissions(folder()) & QFile::Permissions(0x77), QFile::Permissions());
    }

    void whatLiesInThePlaceOfAPreview()
    {
        const QString path = m_png.previewItemURL().toLocalFile();
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir().mkdir(path));
        m_errors.clear();
        QVERIFY(!m_png.previewItemURL().isValid());
        QCoreApplication::processEvents();
        QVERIFY(m_errors.isEmpty()); // swallowed
        const QString secret = m_runtime.filePath(u"secret"_s);
        QVERIFY(QDir().rmdir(path));
        QVERIFY(QFile::link(secret, path));
        QVERIFY(m_png.previewItemURL().isValid());
        QVERIFY(!QFileInfo::exists(secret)); // nothing is written through a link
    }

    /// An item that has only a file is decoded elsewhere, and never shown in the place of a later one.
    void aFileIsShownWhenItHasBeenDecoded()
    {
        struct File : ZEVPreviewItem {
            QString path;
            QUrl previewItemURL() const override { return QUrl::fromLocalFile(path); }
            std::optional<QString> previewItemTitle() const override { return u"a file"_s; }
        };
        QImage red(50, 50, QImage::Format_RGB32);
        red.fill(Qt::red);
        const auto item = std::make_shared<File>();
        item->path = m_runtime.filePath(u"red.png"_s);
        QVERIFY(red.save(item->path));
        ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
        panel->resize(240, 240);
        const auto middle = [&] { return panel->grab().toImage().pixelColor(120, 105); };
        panel->setPreviewItems({item});
        QTRY_COMPARE(middle(), QColor(Qt::red));
        panel->setPreviewItems({item});
        panel->setPreviewItems({});
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(middle() != QColor(Qt::red));
    }

    void thePanelStepsByItsKeysAndShowsWhatThereIs()
    {
        ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
        panel->hide();
        panel->resize(240, 240);
        ZEVPreviewPanel::Items items;
        for (Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue}) {
            QImage image(400, 100, QImage::Format_RGB32);
            image.fill(color);
            items.push_back(std::make_shared<ZEVImageDescription>(encoded(image, "PNG")));
        }
        panel->setPreviewItems(items, 7);
        QCOMPARE(panel->windowTitle(), QString()); // closed, it has nothing to say
        panel->toggle();
        const std::tuple<Qt::Key, qsizetype, QColor> rows[] = {
            {Qt::Key_Left, 1, Qt::green},  {Qt::Key_Up, 0, Qt::red},    {Qt::Key_Left, 0, Qt::red},
            {Qt::Key_Right, 1, Qt::green}, {Qt::Key_Down, 2, Qt::blue}, {Qt::Key_Right, 2, Qt::blue},
        };
        for (const auto &[key, index, color] : rows) {
            QTest::keyClick(panel, key);
            COMPARE_ROW(key, panel->currentPreviewItemIndex(), index);
            const QImage seen = panel->grab().toImage();
            COMPARE_ROW(key, seen.pixelColor(seen.width() / 2, seen.height() * 9 / 20), color);
            QVERIFY(seen.pixelColor(seen.width() / 2, seen.height() / 8) != color); // it is not stretched
        }
        QVERIFY(panel->windowTitle().startsWith(u"400"_s));
        QTest::keyClick(panel, Qt::Key_Space);
        QVERIFY(panel->isHidden());
        QVERIFY(!ZEVPreviewPanel::sharedPreviewPanelIsVisible());
        QVERIFY(!panel->testAttribute(Qt::WA_QuitOnClose));
        QCOMPARE(ZEVUserDefaults::standardUserDefaults()->objectForKey(u"ZEVPreviewPanelSize"_s),
                 QVariant(QVariantList{240, 240}));
    }
};

QTEST_MAIN(tst_ZEVImageDescription)
#include "tst_ZEVImageDescription.moc"
