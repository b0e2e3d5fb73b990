// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

class QUrl;

/// What the desktop shows of files. Main thread only.
namespace ZEVWorkspace {

/// By the item's kind, or by its name where there is no item.
QIcon iconForFile(const QUrl &url);
QIcon folderIcon();

} // namespace ZEVWorkspace
