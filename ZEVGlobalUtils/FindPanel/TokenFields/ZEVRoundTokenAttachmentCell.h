// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenAttachmentCell.h>

/// A token as a capsule: what every pattern token looks like, in fields and in menus.
class ZEV_EXPORT ZEVRoundTokenAttachmentCell : public ZEVTokenAttachmentCell {
public:
    /// Without the room beside the capsule that neighbours in a text need.
    bool withoutSpacing() const { return m_withoutSpacing; }
    void setWithoutSpacing(bool without) { m_withoutSpacing = without; }

    qreal cornerRadius() const override;

protected:
    qreal inset() const override;
    qreal spacing() const override;

private:
    bool m_withoutSpacing = false;
};
