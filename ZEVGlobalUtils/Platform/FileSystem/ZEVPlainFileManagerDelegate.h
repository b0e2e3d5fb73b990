// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QUrl;
class ZEVError;
class ZEVPlainFileManager;

/// Asked, on the operation's thread, when an item could not be copied or moved.
class ZEV_EXPORT ZEVPlainFileManagerDelegate {
public:
    virtual ~ZEVPlainFileManagerDelegate();

    /// True when the operation counts as done all the same.
    virtual bool shouldProceedAfterErrorMovingItemAtURL(ZEVPlainFileManager &fileManager,
                                                        const ZEVError &error, const QUrl &srcURL,
                                                        const QUrl &dstURL);
    virtual bool shouldProceedAfterErrorCopyingItemAtURL(ZEVPlainFileManager &fileManager,
                                                         const ZEVError &error, const QUrl &srcURL,
                                                         const QUrl &dstURL);

    /// Asked before such an error: extended attributes of the item are too large for the volume. True lets the
    /// copy go on without them.
    virtual bool shouldProceedWithoutAttributesOfItemAtURL(ZEVPlainFileManager &fileManager, const QUrl &url);
};
