// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/artwork/ArtworkLimit.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageViewDelegate.h>

#include <QObject>

/// Makes pictures smaller that are larger than the user wants them, on a thread of their own.
class ArtworkVetting : public QObject, public ZEVDragImageViewDelegate {
    Q_OBJECT

public:
    using QObject::QObject;

    void setLimit(const ArtworkLimit &limit) { m_limit = limit; }
    /// The name of a file that is dragged out, without an extension.
    void setExportName(const QString &name) { m_exportName = name; }

    bool acceptImageDescription(ZEVDragImageView *imageView,
                                const std::shared_ptr<ZEVImageDescription> &description,
                                const Completion &completion) override;
    std::optional<QString> exportNameForBitmapData(ZEVDragImageView *imageView,
                                                   const QByteArray &data) override;

private:
    ArtworkLimit m_limit;
    QString m_exportName;
};
