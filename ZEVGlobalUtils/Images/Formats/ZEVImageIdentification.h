// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArrayView>
#include <QSize>
#include <QString>
#include <QStringList>

/// What encoded image bytes really are, by their whole signature and their header. No pixel is decoded and
/// nothing is read past the bytes, whatever they say of themselves. Any thread.
struct ZEV_EXPORT ZEVImageIdentification {
    enum Format { Unknown, TIFF, BMP, GIF, JPEG, PNG, WebP, AVIF, HEIC };

    static ZEVImageIdentification identificationWithData(QByteArrayView data);

    Format format = Unknown;

    /// In pixels, of the first page or frame, as it is stored: no orientation is applied. Invalid where the
    /// header does not say, or says nothing that fits into an int.
    QSize pixelSize;

    /// The registered media type (IANA), "image/webp" and the like; empty when unknown.
    QString mimeType() const;

    /// "PNG", "WebP" and the like; empty when unknown.
    QString formatName() const;

    /// The usual extension of a file, without its dot: "jpg", "webp" and the like; empty when unknown.
    QString fileExtension() const;

    /// Those of all formats that are known here. What of them can be shown is the system's matter.
    static QStringList mimeTypes();

    friend bool operator==(const ZEVImageIdentification &, const ZEVImageIdentification &) = default;
};
