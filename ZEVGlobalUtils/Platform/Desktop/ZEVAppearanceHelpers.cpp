// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QPalette>

bool ZEVAppearanceHelpers::isDark(QStringView appearanceName) { return appearanceName.contains(u"Dark"); }

bool ZEVAppearanceHelpers::isDark(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}
