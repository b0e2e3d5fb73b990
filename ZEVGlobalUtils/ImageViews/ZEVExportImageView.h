// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVExportImageViewDelegate.h>
#include <ZEVGlobalUtils/ImageViews/ZEVImageView.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QPoint>

#include <optional>

/// A picture that can be dragged out of the application, and nothing else. Its delegate says what that gives.
class ZEV_EXPORT ZEVExportImageView : public ZEVImageView {
    Q_OBJECT

public:
    using ZEVImageView::ZEVImageView;

    const ZEVWeakRef<ZEVExportImageViewDelegate> &delegate() const { return m_delegate; }
    void setDelegate(const ZEVWeakRef<ZEVExportImageViewDelegate> &delegate) { m_delegate = delegate; }

    bool allowsCutCopyPaste() const { return false; }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    ZEVWeakRef<ZEVExportImageViewDelegate> m_delegate;
    std::optional<QPoint> m_pressedAt;
};
