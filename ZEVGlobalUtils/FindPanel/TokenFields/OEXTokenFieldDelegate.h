// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

class OEXTokenField;
class QMimeData;
class ZEVTextAttachmentCell;

/// How a token is framed: Rounded is a pill, None stays text.
enum class ZEVTokenStyle {
    Rounded,
    None,
};

/// What a key asks a token field to do.
enum class ZEVTextCommand {
    InsertNewline, // Return, Enter
    InsertNewlineBackward, // the same with Shift; as InsertNewline where nobody has another use for it
    CancelOperation, // Escape
    MoveDown, // Down arrow
};

/// Says what a field's tokens are. Every operation is optional: an empty answer is none.
class ZEV_EXPORT OEXTokenFieldDelegate {
public:
    /// Makes a new cell of one class.
    using AttachmentCellClass = std::function<std::unique_ptr<ZEVTextAttachmentCell>()>;

    virtual ~OEXTokenFieldDelegate();

    virtual ZEVTokenStyle styleForRepresentedObject(const OEXTokenField *tokenField,
                                                    const QVariant &object) const;

    virtual AttachmentCellClass attachmentCellClassForRepresentedObject(const OEXTokenField *tokenField,
                                                                        const QVariant &object) const;

    /// The title inside the token.
    virtual std::optional<QString> displayStringForRepresentedObject(const OEXTokenField *tokenField,
                                                                     const QVariant &object) const;

    /// The text that stands for the token where only text can stand.
    virtual std::optional<QString> editingStringForRepresentedObject(const OEXTokenField *tokenField,
                                                                     const QVariant &object) const;

    /// The other way round; invalid when no token has that text.
    virtual QVariant representedObjectForEditingString(const OEXTokenField *tokenField,
                                                       const QString &editingString) const;

    /// Puts the text form of \a objects, which are copied or dragged, into \a pasteboard for other programs.
    /// False leaves it to the field.
    virtual bool writeRepresentedObjects(const OEXTokenField *tokenField, const QVariantList &objects,
                                         QMimeData *pasteboard) const;

    /// True when \a command has been done; false leaves it to the field.
    virtual bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command);
};
