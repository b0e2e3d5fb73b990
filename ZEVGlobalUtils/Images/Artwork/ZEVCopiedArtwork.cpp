// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVCopiedArtwork_p.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QBuffer>

ZEVCopiedArtwork::ZEVCopiedArtwork(const QByteArray &bitmapData, const QImage &image, const QString &source)
    : m_image(image)
    , m_source(source.toUtf8())
{
    setBitmapData(bitmapData);
}

QStringList ZEVCopiedArtwork::writableTypesForPasteboard() const
{
    QStringList types{ZEVUniformType::Image.toString()};
    if (!m_image.isNull())
        types.append(ZEVUniformType::TIFF.toString());
    if (!m_source.isEmpty())
        types.append(SourceType.toString());
    return types;
}

QByteArray ZEVCopiedArtwork::pasteboardPropertyListForType(QStringView type) const
{
    if (ZEVUniformType::isEqual(type, ZEVUniformType::TIFF))
        return tiff();
    if (ZEVUniformType::isEqual(type, SourceType))
        return m_source;
    return ZEVPboardImageWriter::pasteboardPropertyListForType(type);
}

QByteArray ZEVCopiedArtwork::tiff() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    m_image.save(&buffer, "TIFF");
    return bytes;
}
