// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QImage>
#include <QtEndian>

/// Encoded pictures for tests, made as they are needed.
namespace EncodedImages {

inline QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

/// Noise, so that every format has something to say about every pixel.
inline QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 31 % 256, y * 57 % 256, x * y % 256));
    }
    return image;
}

inline QByteArray encoded(int width, int height, const char *format)
{
    return encoded(picture(width, height), format);
}

inline QByteArray bigEndian(quint32 number)
{
    const quint32 swapped = qToBigEndian(number);
    return {reinterpret_cast<const char *>(&swapped), 4};
}

inline QByteArray box(const char *tag, const QByteArray &content)
{
    return bigEndian(quint32(content.size() + 8)) + tag + content;
}

/// Frames of one pixel on a screen of that size.
inline QByteArray gif(quint16 width, quint16 height, int frames)
{
    QByteArray bytes("GIF89a\0\0\0\0\x80\0\0\0\0\0\xFF\xFF\xFF", 19);
    qToLittleEndian(width, bytes.data() + 6);
    qToLittleEndian(height, bytes.data() + 8);
    bytes += QByteArray(",\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15).repeated(frames);
    return bytes + ';';
}

/// The boxes of a picture without its pixels: a thumbnail's size stands before that of the primary item.
inline QByteArray avif(quint32 width, quint32 height)
{
    const QByteArray none(4, '\0'), item7("\0\7", 2);
    const QByteArray sizes = box("ispe", none + bigEndian(16) + bigEndian(9)) + box("pixi", none)
        + box("ispe", none + bigEndian(width) + bigEndian(height));
    const QByteArray associations =
        none + bigEndian(2) + QByteArray("\0\3\1\1", 4) + item7 + QByteArray("\2\2\x83", 3);
    const QByteArray properties = box("iprp", box("ipco", sizes) + box("ipma", associations));
    return box("ftyp", "mif1" + none + "miafavif")
        + box("meta", none + box("pitm", none + item7) + properties);
}

/// A little-endian TIFF with nothing but an orientation.
inline QByteArray exif(char orientation)
{
    return QByteArray("II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0", 18) + orientation + QByteArray(7, '\0');
}

/// PNG specification, annex D.
inline quint32 pngChecksum(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

inline QByteArray littleEndian(quint32 number)
{
    const quint32 swapped = qToLittleEndian(number);
    return {reinterpret_cast<const char *>(&swapped), 4};
}

/// The encoded picture with an orientation where its format has one.
inline QByteArray turned(const QImage &image, const QByteArray &format, char orientation)
{
    QByteArray bytes = encoded(image, format.constData());
    const QByteArray tiff = exif(orientation);
    if (format == "JPG")
        return bytes.insert(2,
                            QByteArray("\xFF\xE1\0\x22"
                                       "Exif\0\0",
                                       10)
                                + tiff);
    if (format == "PNG")
        return bytes.insert(
            33, bigEndian(quint32(tiff.size())) + "eXIf" + tiff + bigEndian(pngChecksum("eXIf" + tiff)));
    if (format == "WEBP") {
        const QByteArray size = littleEndian(quint32(image.width() - 1)).first(3)
            + littleEndian(quint32(image.height() - 1)).first(3);
        const QByteArray chunks = "WEBPVP8X" + littleEndian(10) + QByteArray("\x08\0\0\0", 4) + size
            + bytes.sliced(12) + "EXIF" + littleEndian(quint32(tiff.size())) + tiff;
        return "RIFF" + littleEndian(quint32(chunks.size())) + chunks;
    }
    const qsizetype entry = bytes.indexOf(QByteArray("\x12\1\3\0\1\0\0\0", 8));
    return bytes.replace(entry + 8, 1, QByteArray(1, orientation));
}

} // namespace EncodedImages
