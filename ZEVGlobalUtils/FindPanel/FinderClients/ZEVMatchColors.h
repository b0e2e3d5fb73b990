// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>

class QPalette;

/// Colours that stay readable in light and dark palettes.
namespace ZEVMatchColors {

struct Pair {
    QColor background;
    QColor text;
};

/// A match over a cell whose background is \a base: a marker's yellow laid over it, the current match in a
/// full orange, and the text in whichever of black and white stands out more.
ZEV_EXPORT Pair forMatchOver(const QColor &base, bool isCurrent);

/// A text of less weight than others on the base, yet no fainter than can be read.
ZEV_EXPORT QColor dimmedText(const QPalette &palette);

/// A text that tells of an error, on the window's background.
ZEV_EXPORT QColor errorText(const QPalette &palette);

/// 1 for the same colour up to 21 for black on white, by the formula of WCAG 2.1.
ZEV_EXPORT double contrast(const QColor &a, const QColor &b);

} // namespace ZEVMatchColors
