// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenAnswers_p.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

ZEVTokenAnswers::ZEVTokenAnswers(OEXTokenField *field)
    : QObject(field)
    , m_field(field)
{
}

bool ZEVTokenAnswers::showsTokenForRepresentedObject(const OEXTokenFieldCell *, const QVariant &object) const
{
    const OEXTokenFieldDelegate *delegate = m_field->delegate();
    return !delegate || delegate->styleForRepresentedObject(m_field, object) != ZEVTokenStyle::None;
}

std::unique_ptr<ZEVTextAttachmentCell>
ZEVTokenAnswers::attachmentCellForRepresentedObject(const OEXTokenFieldCell *, const QVariant &object) const
{
    const OEXTokenFieldDelegate *delegate = m_field->delegate();
    const OEXTokenFieldDelegate::AttachmentCellClass cellClass = delegate
        ? delegate->attachmentCellClassForRepresentedObject(m_field, object)
        : OEXTokenFieldDelegate::AttachmentCellClass();
    return cellClass ? cellClass() : std::make_unique<ZEVTextAttachmentCell>();
}

std::optional<QString> ZEVTokenAnswers::displayStringForRepresentedObject(const OEXTokenFieldCell *,
                                                                          const QVariant &object) const
{
    const OEXTokenFieldDelegate *delegate = m_field->delegate();
    return delegate ? delegate->displayStringForRepresentedObject(m_field, object) : std::nullopt;
}
