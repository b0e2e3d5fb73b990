// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldButtonCell.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGeometry.h>

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF ImageSize(16, 16);
constexpr qreal InactiveOpacity = 0.5;

} // namespace

ZEVFilterSearchFieldButtonCell::ZEVFilterSearchFieldButtonCell(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
}

void ZEVFilterSearchFieldButtonCell::setActive(bool active)
{
    m_active = active;
    update();
}

void ZEVFilterSearchFieldButtonCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawWithFrame(&painter, rect());
}

void ZEVFilterSearchFieldButtonCell::drawWithFrame(QPainter *painter, const QRectF &frame) const
{
    QRectF square = frame;
    square.setWidth(qMin(frame.width(), frame.height() + 1.0));
    const QRectF image =
        ZEVCenteredRectWithSizeInRect(ImageSize, square).translated(0, -1 / devicePixelRatioF());
    painter->setOpacity(m_active ? 1.0 : InactiveOpacity);
    ZEVNamedImages::drawImageNamed(m_active ? u"icoFilter-ON"_s : u"icoFilter"_s, painter, image,
                                   palette().color(QPalette::Text));
}
