// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>

#include <QDropEvent>

class ZEVPboardImageWriter;

/// The half of an artwork well that brings artwork in and out: what may be read, drops, the clipboard, chosen files,
/// and what a drag carries.
class ZEVArtworkTransfer : public QObject {
    Q_OBJECT

public:
    explicit ZEVArtworkTransfer(ZEVDragImageView *well);

    ZEVArtworkImporter *importer() { return &m_importer; }

    /// Whether there is something that can be shown: image bytes, an image file's address, or the promise of one.
    static bool canRead(const ZEVPasteboard &pasteboard);

    /// "Generic" is a copy, too.
    static Qt::DropAction operation(const QDropEvent &event);
    /// What a drag that comes in would do; several files at once are refused.
    Qt::DropAction entered(const QDropEvent &event) const;
    /// Everything is taken here and now: on Wayland the data of a drop does not outlive its event.
    bool perform(const QDropEvent &event);

    /// The picture as TIFF or, as it is shown, as PDF; null for other types and without a picture.
    QByteArray dataForType(QStringView type) const;

    void copy() const;
    void paste();
    void browse();

    /// Only with artwork.
    std::shared_ptr<ZEVPboardImageWriter> writer() const;

Q_SIGNALS:
    /// Artwork that was read; \a source is invalid where it has none.
    void imported(const std::shared_ptr<ZEVImageDescription> &artwork, const QUrl &source);
    void pasted(const std::shared_ptr<ZEVImageDescription> &artwork);

private:
    ZEVArtworkImporter::Apply importedFrom(const QUrl &source);

    ZEVDragImageView *m_well;
    ZEVArtworkImporter m_importer;
};
