// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>
#include <QWidget>

#include <array>

/// The dashes of the outline, in points: on, off.
inline constexpr std::array<qreal, 2> ZEVDashArray{8, 3};

/// A rounded dashed border, three points wide, just inside the widget's edges.
class ZEV_EXPORT ZEVDashDrawingView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor dashColor READ dashColor WRITE setDashColor)

public:
    explicit ZEVDashDrawingView(QWidget *parent = nullptr);

    /// A grey at first, the same in light and dark.
    const QColor &dashColor() const { return m_dashColor; }
    void setDashColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_dashColor;
};
