// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVImageDecoder_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVImageCompleteness_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageOrientation_p.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QPainter>
#include <QPixelFormat>

#include <cmath>

namespace {

/// Qt's limit belongs to the process and a host may have lifted it; this one is ours. It is enough for 33
/// million pixels of 8 bits a channel. What is made of a picture may take as much again.
constexpr qint64 MostDecodedBytes = 128LL * 1024 * 1024;
/// What is scaled down this much after decoding looks as if the whole had been (49 dB and better), though the decoder
/// has left out what is finer than that.
constexpr double EnoughToScaleDown = 5;
/// Larger pictures are kept scaled down to this many pixels.
constexpr qint64 MostKeptPixels = 16LL * 1024 * 1024;

qint64 pixels(const QSize &size) { return qint64(size.width()) * size.height(); }

QByteArray formatName(const ZEVImageIdentification &identification)
{
    return identification.mimeType().section(u'/', 1).toLatin1();
}

bool hasDecoder(const ZEVImageIdentification &identification)
{
    return ZEVImageDecoder::isDecodedMimeType(identification.mimeType());
}

/// Reads one picture from the bytes of one format, as far as our limits allow.
class Reader {
public:
    Reader(const ZEVImageIdentification &identification, const QByteArray &data)
        : m_identification(identification)
        , m_data(data)
    {
        m_buffer.setData(data);
        m_reader.setDevice(&m_buffer);
        m_reader.setFormat(formatName(identification));
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setAutoTransform(false); // some formats know of it, and some do not
    }

    /// Nil when the whole picture does not fit and the format is not read in parts.
    std::optional<QImage> read(QSize room)
    {
        const QSize size = m_identification.pixelSize;
        // Asked twice, since the reader has to look into the file for its answer.
        if (pixels(size) * 4 > MostDecodedBytes || pixels(size) * bitsPerPixel() / 8 > MostDecodedBytes) {
            const QSize part = partSize();
            if (part.isEmpty())
                return std::nullopt;
            m_reader.setScaledSize(part);
        } else if (const int divisor = divisorFor(room); divisor > 1) {
            m_reader.setScaledSize(dividedSize(divisor));
            m_isForRoom = true;
        }
        return m_reader.read();
    }

    bool isForRoom() const { return m_isForRoom; }

private:
    /// Palettes are decoded to true colour at times, and Qt's own limit counts so, too: nothing is less than 32
    /// bits. Only these two formats can have more, and the decoder of JPEG has no right answer where the header
    /// is damaged.
    int bitsPerPixel()
    {
        const bool mayBeDeep = m_identification.format == ZEVImageIdentification::PNG
            || m_identification.format == ZEVImageIdentification::TIFF;
        const QImage::Format decoded = mayBeDeep ? m_reader.imageFormat() : QImage::Format_Invalid;
        return std::max(32, int(QImage::toPixelFormat(decoded).bitsPerPixel()));
    }

    /// By the powers of two of the transform of JPEG, without a step in between.
    QSize dividedSize(int divisor) const
    {
        const QSize size = m_identification.pixelSize;
        return {(size.width() + divisor - 1) / divisor, (size.height() + divisor - 1) / divisor};
    }

    /// What the decoder may leave out of a picture that takes so much room.
    int divisorFor(QSize room) const
    {
        if (room.isEmpty() || m_identification.format != ZEVImageIdentification::JPEG)
            return 1;
        const QSize size = m_identification.pixelSize;
        const double scale =
            std::max(double(size.width()) / room.width(), double(size.height()) / room.height());
        int divisor = 1;
        while (divisor < 8 && divisor * 2 * EnoughToScaleDown <= scale)
            divisor *= 2;
        return divisor;
    }

    /// The size in which the decoder can read without having the whole; empty where it cannot.
    QSize partSize() const
    {
        const QSize size = m_identification.pixelSize;
        switch (m_identification.format) {
        case ZEVImageIdentification::JPEG:
            for (int divisor = 2; divisor <= 8; divisor *= 2) {
                if (const QSize part = dividedSize(divisor); pixels(part) * 4 <= MostDecodedBytes)
                    return part;
            }
            return {};
        case ZEVImageIdentification::PNG:
            return readsByRows() ? size.scaled(keptEdges(size), Qt::KeepAspectRatio).expandedTo({1, 1})
                                 : QSize();
        default:
            return {};
        }
    }

    /// Rows of true colour, or of grey with transparency, with 8 bits, from the top to the bottom.
    bool readsByRows() const
    {
        constexpr qsizetype Depth = 24, ColorType = 25, Interlace = 28;
        return m_data.size() > Interlace && m_data[Depth] == 8
            && (m_data[ColorType] == 2 || m_data[ColorType] == 4 || m_data[ColorType] == 6)
            && m_data[Interlace] == 0;
    }

    static QSize keptEdges(const QSize &size)
    {
        const double scale = std::sqrt(double(MostKeptPixels) / double(pixels(size)));
        return {int(size.width() * scale), int(size.height() * scale)};
    }

    ZEVImageIdentification m_identification;
    QByteArray m_data;
    QBuffer m_buffer;
    QImageReader m_reader;
    bool m_isForRoom = false;
};

/// One band after the other in the same place, since what is scaled has to be in true colour.
QImage scaledDown(const QImage &image)
{
    const double scale = std::sqrt(double(MostKeptPixels) / double(pixels(image.size())));
    if (scale >= 1)
        return image;
    constexpr int Rows = 64;
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QSize size = QSize(int(image.width() * scale), int(image.height() * scale)).expandedTo({1, 1});
    QImage scaled(size, format), band(image.width(), int(std::ceil(Rows / scale)), format);
    scaled.setColorSpace(image.colorSpace());
    QPainter painter(&scaled);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int top = 0; top < size.height(); top += Rows) {
        QPainter source(&band);
        source.setCompositionMode(QPainter::CompositionMode_Source);
        source.drawImage(QPoint(0, -int(top / scale)), image);
        painter.drawImage(0, top,
                          band.scaled(size.width(), Rows, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return scaled;
}

/// In the colours that windows are drawn in.
QImage inStandardColors(QImage image)
{
    const QColorSpace standard = QColorSpace::SRgb;
    if (image.colorSpace().isValid() && image.colorSpace() != standard)
        image.convertToColorSpace(standard);
    return image;
}

ZEVImageDecoder::Outcome outcomeBeforeReading(const ZEVImageIdentification &identification,
                                              const QByteArray &data)
{
    using ZEVImageDecoder::Outcome;
    if (identification.format == ZEVImageIdentification::Unknown)
        return Outcome::NoImage;
    if (!hasDecoder(identification))
        return Outcome::NoDecoder;
    if (!identification.pixelSize.isValid())
        return Outcome::Damaged;
    if (!ZEVImageCompleteness::isWorthDecoding(identification, data))
        return Outcome::TooLarge;
    return ZEVImageCompleteness::isComplete(identification, data) ? Outcome::Shown : Outcome::Damaged;
}

} // namespace

ZEVImageDecoder::Picture ZEVImageDecoder::pictureWithData(const QByteArray &data, QSize room)
{
    const auto identification = ZEVImageIdentification::identificationWithData(data);
    const int orientation = ZEVImageOrientation::orientation(identification, data);
    Picture picture;
    picture.outcome = outcomeBeforeReading(identification, data);
    picture.storedSize = identification.pixelSize.expandedTo({0, 0});
    picture.isAnimated = ZEVImageCompleteness::isAnimated(identification, data);
    if (picture.outcome == Outcome::Shown) {
        Reader reader(identification, data);
        const auto image =
            reader.read(ZEVImageOrientation::isTransposed(orientation) ? room.transposed() : room);
        picture.isForRoom = reader.isForRoom();
        picture.outcome = !image ? Outcome::TooLarge : image->isNull() ? Outcome::Damaged : Outcome::Shown;
        if (image && !image->isNull())
            picture.image = ZEVImageOrientation::upright(inStandardColors(scaledDown(*image)), orientation);
        picture.image.setDevicePixelRatio(1);
    }
    if (picture.outcome == Outcome::Damaged)
        picture.storedSize = {0, 0};
    picture.shownSize =
        ZEVImageOrientation::isTransposed(orientation) ? picture.storedSize.transposed() : picture.storedSize;
    return picture;
}

bool ZEVImageDecoder::isDecodedMimeType(const QString &mimeType)
{
    static const QList<QByteArray> decoded = QImageReader::supportedImageFormats();
    return ZEVImageIdentification::mimeTypes().contains(mimeType)
        && decoded.contains(mimeType.section(u'/', 1).toLatin1());
}
