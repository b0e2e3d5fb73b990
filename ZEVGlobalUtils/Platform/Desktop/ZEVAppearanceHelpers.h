// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringView>

class QPalette;

namespace ZEVAppearanceHelpers {

/// Whether the name of an appearance or theme says "Dark" anywhere, so that every dark variant counts.
ZEV_EXPORT bool isDark(QStringView appearanceName);

/// Whether windows are drawn light on dark: what tells an appearance where themes have no such names.
ZEV_EXPORT bool isDark(const QPalette &palette);

} // namespace ZEVAppearanceHelpers
