// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QIcon>

class QUrl;

/// What the desktop shows of files. Main thread only.
namespace ZEVWorkspace {

/// By the item's kind, or by its name where there is no item.
ZEV_EXPORT QIcon iconForFile(const QUrl &url);
ZEV_EXPORT QIcon folderIcon();

} // namespace ZEVWorkspace
