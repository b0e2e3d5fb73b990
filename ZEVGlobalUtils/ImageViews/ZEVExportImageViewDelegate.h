// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <memory>

class ZEVExportImageView;
class ZEVPasteboardWriting;

/// Says what an export view gives out.
class ZEV_EXPORT ZEVExportImageViewDelegate {
public:
    virtual ~ZEVExportImageViewDelegate();

    /// What is dragged, usually a ZEVPboardImageWriter; null when there is nothing to export.
    virtual std::shared_ptr<ZEVPasteboardWriting> pasteboardWriterForExport(ZEVExportImageView *view) = 0;
};
