// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QIcon>

class QUrl;

namespace ZEVURLIcon {

/// The size in points in which lists show it.
inline constexpr int ListSize = 16;

/// The desktop's icon for a file or folder, which need not exist; null for an address without a path. Main
/// thread only.
ZEV_EXPORT QIcon fileIcon(const QUrl &url);

} // namespace ZEVURLIcon
