// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/ZEVPreviewItem.h>

#include <QByteArray>
#include <QImage>

/// A summary of one piece of artwork, made once from its encoded bytes. Bytes that cannot be decoded, or
/// would take more memory than any artwork needs, have no picture and a size of 0 by 0; the rest still tells
/// of them. Different threads may read the same description.
class ZEV_EXPORT ZEVImageDescription : public ZEVPreviewItem {
public:
    explicit ZEVImageDescription(const QByteArray &bitmapData);

    /// Where the artwork came from, invalid when that is not known.
    const QUrl &originURL() const { return m_originURL; }
    void setOriginURL(const QUrl &url) { m_originURL = url; }

    const QByteArray &bitmapData() const { return m_bitmapData; }
    /// The first frame or page as it is stored, one point a pixel; null when it cannot be decoded.
    const QImage &image() const { return m_image; }
    /// The name of the format by the first byte, "PNG" and the like.
    const QString &type() const { return m_type; }
    /// "640 × 480 px".
    const QString &dimensions() const { return m_dimensions; }
    /// In bytes.
    quint64 byteSize() const { return quint64(m_bitmapData.size()); }
    /// In pixels.
    QSizeF size() const { return m_image.size(); }

    /// One line: dimensions, type and the size in bytes.
    QString imageDescription() const;

    /// The bytes as they are and, for programs that cannot read those, the picture as a TIFF that is made
    /// when it is asked for. Main thread only.
    void placeOnGeneralPasteboard() const;

    /// A file with the bytes, named after them, so that the same artwork is written once and another never
    /// overwrites it. Only while the shared preview panel is visible. A failure is presented to the user
    /// later, on the main thread. Any thread.
    QUrl previewItemURL() const override;
    /// The imageDescription(), only while the shared preview panel is visible.
    std::optional<QString> previewItemTitle() const override;

    /// The folder of all preview files, open to nobody but the user; \a create makes it. Files stay in it
    /// until they are cleaned up.
    static QUrl quickLookTemporaryDirectoryURL(bool create);
    static void cleanupTemporaryDirectory();

private:
    QUrl m_originURL;
    QByteArray m_bitmapData;
    QImage m_image;
    QString m_type;
    QString m_dimensions;
};
