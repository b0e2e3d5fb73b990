// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>

#include <QImage>

/// Artwork as it is copied: the bytes under the general type of images, the picture as TIFF and, where it has
/// one, the identifier of the application that it comes from.
class ZEVCopiedArtwork : public ZEVPboardImageWriter {
public:
    /// A convention of clipboard managers, nspasteboard.org.
    static constexpr QStringView SourceType = u"org.nspasteboard.source";

    ZEVCopiedArtwork(const QByteArray &bitmapData, const QImage &image, const QString &source = {});

    QStringList writableTypesForPasteboard() const override;
    QByteArray pasteboardPropertyListForType(QStringView type) const override;

private:
    QByteArray tiff() const;

    QImage m_image;
    QByteArray m_source;
};
