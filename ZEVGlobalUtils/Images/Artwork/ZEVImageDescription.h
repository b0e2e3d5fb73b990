// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewItem.h>

#include <QByteArray>
#include <QImage>
#include <QMutex>

/// A summary of one piece of artwork, made once from its encoded bytes. What is damaged or no image has no
/// picture and a size of 0 by 0, what cannot be shown for another reason has the size that it says it has; the
/// rest tells of it all the same. Making it decodes the picture, which may take a while: any thread. Different
/// threads may read and set the same description.
class ZEV_EXPORT ZEVImageDescription : public ZEVPreviewItem {
public:
    explicit ZEVImageDescription(const QByteArray &bitmapData);

    /// Where the artwork came from, invalid when that is not known.
    QUrl originURL() const;
    void setOriginURL(const QUrl &url);

    const QByteArray &bitmapData() const { return m_bitmapData; }
    /// The first frame or page, upright and in sRGB, one point a pixel; scaled down to 16 million pixels where it
    /// has more. Null when it cannot be shown.
    const QImage &image() const { return m_image; }
    /// The name of the format by the first byte, "PNG" and the like.
    const QString &type() const { return m_type; }
    /// "640 × 480 px".
    const QString &dimensions() const { return m_dimensions; }
    /// In bytes.
    quint64 byteSize() const { return quint64(m_bitmapData.size()); }
    /// In pixels, as the picture is stored.
    QSizeF size() const { return m_size; }
    /// In pixels, as it stands upright: width and height may have changed places.
    QSizeF shownSize() const { return m_shownSize; }

    /// Why it is not shown ("damaged", "no decoder for AVIF") or what of it is not ("animated"), in the user's
    /// language; empty when there is nothing to say.
    const QString &remark() const { return m_remark; }

    /// One line: dimensions, type and the size in bytes.
    QString imageDescription() const;

    /// The bytes as they are and, for programs that cannot read those, the picture as a TIFF that is made
    /// when it is asked for. Main thread only.
    void placeOnGeneralPasteboard() const;

    /// A file with the bytes, named after them, so that the same artwork is written once and another never
    /// overwrites it. Only while the shared preview panel is visible. A failure is presented to the user
    /// later, on the main thread. Any thread.
    QUrl previewItemURL() const override;
    QImage previewItemImage() const override { return m_image; }
    /// The imageDescription(), only while the shared preview panel is visible.
    std::optional<QString> previewItemTitle() const override;

    /// The folder of all preview files, open to nobody but the user; \a create makes it. Files stay in it
    /// until they are cleaned up.
    static QUrl quickLookTemporaryDirectoryURL(bool create);
    static void cleanupTemporaryDirectory();

private:
    mutable QMutex m_originLock;
    QUrl m_originURL;
    QByteArray m_bitmapData;
    QImage m_image;
    QSizeF m_size;
    QSizeF m_shownSize;
    QString m_remark;
    QString m_type;
    QString m_dimensions;
};
