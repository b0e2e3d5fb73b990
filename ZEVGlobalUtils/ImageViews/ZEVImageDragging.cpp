// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVImageDragging_p.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardItem.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardWriting.h>

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QWidget>

namespace {

/// In points: more would only hide where the picture may be dropped.
constexpr int LongestEdge = 384;

} // namespace

std::optional<QPoint> ZEVImageDragging::pressedPoint(const QMouseEvent &event)
{
    return event.button() == Qt::LeftButton ? std::optional(event.position().toPoint()) : std::nullopt;
}

std::optional<QPoint> ZEVImageDragging::takeStart(std::optional<QPoint> &pressedAt, const QMouseEvent &event)
{
    if (!pressedAt || !event.buttons().testFlag(Qt::LeftButton))
        return std::nullopt;
    const QPoint way = event.position().toPoint() - *pressedAt;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return std::nullopt;
    return std::exchange(pressedAt, std::nullopt);
}

QPixmap ZEVImageDragging::dragImage(QWidget *shown, const QRect &frame)
{
    if (frame.isEmpty())
        return {};
    const qreal ratio = shown->devicePixelRatioF();
    QPixmap picture(frame.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    shown->render(&picture, {}, frame, QWidget::DrawChildren);
    if (std::max(frame.width(), frame.height()) <= LongestEdge)
        return picture;
    const QSize most = QSize(LongestEdge, LongestEdge) * ratio;
    picture = picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void ZEVImageDragging::dragOut(QWidget *source, QWidget *shown, const QRect &frame, QPoint start,
                               const std::shared_ptr<ZEVPasteboardWriting> &writer)
{
    const QPixmap picture = dragImage(shown, frame);
    writer->setPasteboardName(ZEVPasteboard::DragName.toString());
    auto *const item = new ZEVPasteboardItem(writer, ZEVPasteboard::DragName.toString());
    auto *const drag = new QDrag(source);
    drag->setPixmap(picture);
    const qreal scale = picture.isNull() ? 1 : picture.deviceIndependentSize().width() / frame.width();
    drag->setHotSpot(((start - frame.topLeft()).toPointF() * scale).toPoint());
    item->exec(drag);
}
