// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariant>

#include <memory>
#include <optional>

class OEXTokenFieldCell;
class ZEVTextAttachmentCell;

/// Says how a cell's tokens look. Every operation is optional.
class ZEV_EXPORT OEXTokenFieldCellDelegate {
public:
    virtual ~OEXTokenFieldCellDelegate();

    /// Whether an object stands as a token; text never does.
    virtual bool showsTokenForRepresentedObject(const OEXTokenFieldCell *cell, const QVariant &object) const;

    /// Null leaves the attachment the cell that it has.
    virtual std::unique_ptr<ZEVTextAttachmentCell>
    attachmentCellForRepresentedObject(const OEXTokenFieldCell *cell, const QVariant &object) const;

    /// The token's title; nil leaves the one that the attachment cell has.
    virtual std::optional<QString> displayStringForRepresentedObject(const OEXTokenFieldCell *cell,
                                                                     const QVariant &object) const;
};
