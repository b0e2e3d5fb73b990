// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldDelegate.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

OEXTokenFieldDelegate::~OEXTokenFieldDelegate() = default;

ZEVTokenStyle OEXTokenFieldDelegate::styleForRepresentedObject(const OEXTokenField *, const QVariant &) const
{
    return ZEVTokenStyle::Rounded;
}

OEXTokenFieldDelegate::AttachmentCellClass
OEXTokenFieldDelegate::attachmentCellClassForRepresentedObject(const OEXTokenField *, const QVariant &) const
{
    return {};
}

std::optional<QString> OEXTokenFieldDelegate::displayStringForRepresentedObject(const OEXTokenField *,
                                                                                const QVariant &) const
{
    return std::nullopt;
}

std::optional<QString> OEXTokenFieldDelegate::editingStringForRepresentedObject(const OEXTokenField *,
                                                                                const QVariant &) const
{
    return std::nullopt;
}

QVariant OEXTokenFieldDelegate::representedObjectForEditingString(const OEXTokenField *,
                                                                  const QString &) const
{
    return {};
}

bool OEXTokenFieldDelegate::writeRepresentedObjects(const OEXTokenField *, const QVariantList &,
                                                    QMimeData *) const
{
    return false;
}

bool OEXTokenFieldDelegate::doCommandBySelector(OEXTokenField *, ZEVTextCommand) { return false; }
