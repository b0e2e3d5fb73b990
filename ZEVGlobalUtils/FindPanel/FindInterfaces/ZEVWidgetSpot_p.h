// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

/// Where a widget stands, so that another one can be put there in its stead: in a layout, a splitter, a dock, a
/// main window, or anywhere in its parent. Made before the widget is taken away.
class ZEVWidgetSpot {
public:
    explicit ZEVWidgetSpot(QWidget *occupant);

    /// Nowhere, where the occupant had no parent.
    void put(QWidget *widget) const;

private:
    QPointer<QWidget> m_parent;
    QPointer<QWidget> m_placeholder; ///< what holds the place in a layout or a splitter
    QRect m_geometry;
    bool m_isShown = false;
};
