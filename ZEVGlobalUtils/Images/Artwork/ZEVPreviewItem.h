// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QImage>
#include <QString>
#include <QUrl>

#include <optional>

/// Something that the preview panel can show.
class ZEV_EXPORT ZEVPreviewItem {
public:
    virtual ~ZEVPreviewItem();

    /// The file with the picture; invalid for none.
    virtual QUrl previewItemURL() const = 0;
    /// The picture, where it has been decoded already; null to have the file decoded.
    virtual QImage previewItemImage() const { return {}; }
    /// One line about it; nil for none.
    virtual std::optional<QString> previewItemTitle() const = 0;
};
