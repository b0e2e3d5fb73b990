// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

class QColor;
class QPalette;

/// The library's own colours, each in a light and a dark variant.
namespace ZEVNamedColors {

/// For the appearance that \a palette has; an invalid colour for an unknown name.
QColor colorNamed(QStringView name, const QPalette &palette);

/// \a color on its way to white by \a level (0 to 1), alpha included.
QColor highlightWithLevel(const QColor &color, float level);

} // namespace ZEVNamedColors
