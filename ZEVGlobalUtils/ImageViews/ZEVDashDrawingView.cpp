// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDashDrawingView.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr qreal CornerRadius = 10;
constexpr qreal LineWidth = 6; ///< the outer half of which is cut off

/// A pen counts its dashes in widths of its line.
QPen dashPen(const QColor &color)
{
    QPen pen(color, LineWidth, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({ZEVDashArray[0] / LineWidth, ZEVDashArray[1] / LineWidth});
    return pen;
}

} // namespace

ZEVDashDrawingView::ZEVDashDrawingView(QWidget *parent)
    : QWidget(parent)
    , m_dashColor(ZEVNamedColors::highlightWithLevel(QColor::fromRgbF(0.427F, 0.427F, 0.438F), 0.1F))
{
}

void ZEVDashDrawingView::setDashColor(const QColor &color)
{
    m_dashColor = color;
    update();
}

void ZEVDashDrawingView::paintEvent(QPaintEvent *)
{
    QPainterPath path;
    path.addRoundedRect(rect(), CornerRadius, CornerRadius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(path);
    painter.strokePath(path, dashPen(m_dashColor));
}
