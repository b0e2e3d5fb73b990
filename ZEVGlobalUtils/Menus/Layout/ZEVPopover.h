// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QFrame>
#include <QPointer>

/// A small window beside a widget, closed by Escape and by a click elsewhere.
class ZEV_EXPORT ZEVPopover : public QFrame {
    Q_OBJECT

public:
    /// The side of a widget on which a popover stands, in coordinates that grow to the right and downwards.
    enum Edge { MinX = 0, MinY = 1, MaxX = 2, MaxY = 3 };

    explicit ZEVPopover(QWidget *parent = nullptr);

    /// What the popover shows; it goes with the popover, or when another one (null for none) takes its place.
    void setContent(QWidget *content);

    bool isShown() const { return isVisible(); }

    /// \a rect in the coordinates of \a view. Where the screen ends, the popover stands on the opposite side
    /// and moves along the edge.
    void showRelativeToRect(const QRect &rect, QWidget *view, Edge preferredEdge);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QPointer<QWidget> m_view;
    QPointer<QWidget> m_content;
};
