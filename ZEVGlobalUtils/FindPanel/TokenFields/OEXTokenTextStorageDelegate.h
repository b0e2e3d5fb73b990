// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

class OEXTokenTextStorage;
class ZEVTextAttachment;

/// Hears of the attachments that enter a storage.
class ZEV_EXPORT OEXTokenTextStorageDelegate {
public:
    virtual ~OEXTokenTextStorageDelegate();

    /// \a range is the place of the attachment's character.
    virtual void updateTokenAttachment(OEXTokenTextStorage *storage, ZEVTextAttachment *attachment,
                                       ZEVRange range);
};
