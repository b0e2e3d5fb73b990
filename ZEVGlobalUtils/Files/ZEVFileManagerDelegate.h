// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QUrl;
class ZEVFileManager;

/// Obtains access for a file manager; called on the thread of its operation.
class ZEV_EXPORT ZEVFileManagerDelegate {
public:
    virtual ~ZEVFileManagerDelegate();

    /// True when the folder can be read now.
    virtual bool provideSandboxAccessToURL(ZEVFileManager &fileManager, const QUrl &url) = 0;
};
