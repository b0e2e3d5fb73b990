// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

class QColor;
class QIcon;
class QPainter;
class QRectF;

/// The library's own images. They are drawn in the text colour of the widget or the style that shows them,
/// so they follow light and dark and stay sharp at every scale factor.
namespace ZEVNamedImages {

/// Null for an unknown name.
QIcon imageNamed(QStringView name);

/// Draws nothing for an unknown name.
void drawImageNamed(QStringView name, QPainter *painter, const QRectF &rect, const QColor &color);

} // namespace ZEVNamedImages
