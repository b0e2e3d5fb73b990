// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenAttachmentCell.h>

/// A green token.
class ZEV_EXPORT ZEVGreenTokenAttachmentCell : public ZEVTokenAttachmentCell {
public:
    QColor tokenFillColorForDrawingMode(qint64 mode, const QPalette &palette) const override;
};
