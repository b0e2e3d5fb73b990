// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QPoint>

#include <memory>
#include <optional>

class QMouseEvent;
class QWidget;
class ZEVPasteboardWriting;

/// What the views that give out their picture have in common.
namespace ZEVImageDragging {

/// Where a drag may begin that begins with this press; nil for the other buttons.
std::optional<QPoint> pressedPoint(const QMouseEvent &event);

/// The point, once, when the mouse has moved away from it far enough to mean a drag.
std::optional<QPoint> takeStart(std::optional<QPoint> &pressedAt, const QMouseEvent &event);

/// What \a shown shows in its \a frame, in points; large ones are scaled down.
QPixmap dragImage(QWidget *shown, const QRect &frame);

/// Drags the picture away from \a start, in coordinates of \a shown, as a copy. Returns when that has ended;
/// the widgets may have gone then.
void dragOut(QWidget *source, QWidget *shown, const QRect &frame, QPoint start,
             const std::shared_ptr<ZEVPasteboardWriting> &writer);

} // namespace ZEVImageDragging
