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
    /// With a \a room, in pixels, in which the picture is to be shown, no more of it is decoded than that takes; the
    /// rest waits until somebody asks for the image().
    explicit ZEVImageDescription(const QByteArray &bitmapData, QSize room = {});

    /// Where the artwork came from, invalid when that is not known.
    QUrl originURL() const;
    void setOriginURL(const QUrl &url);

    const QByteArray &bitmapData() const { return m_bitmapData; }
    /// The first frame or page, upright and in sRGB, one point a pixel; scaled down to 16 million pixels where it
    /// has more. Null when it cannot be shown.
    const QImage &image() const;
    /// Whether there is a picture.
    bool isShown() const { return m_isShown; }
    /// The image() in the middle of one of that \a size, in points, as large as fits. Null when it cannot be shown.
    QImage imageScaledToFitSize(QSizeF size, qreal devicePixelRatio = 1) const;
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
    QImage previewItemImage() const override { return image(); }
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
    bool m_isShown = false;
    QSize m_room; ///< that m_imageForRoom is enough for; empty where there is none
    QImage m_imageForRoom;
    mutable QMutex m_imageLock;
    mutable QImage m_image; ///< null until it is asked for, with a m_imageForRoom
    QSizeF m_size;
    QSizeF m_shownSize;
    QString m_remark;
    QString m_type;
    QString m_dimensions;
};
