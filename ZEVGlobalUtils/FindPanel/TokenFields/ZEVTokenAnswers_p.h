// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCellDelegate.h>

#include <QObject>

class OEXTokenField;

/// Answers all that a field's cell asks about a token, as the field's delegate would have it: whether it is
/// one, what draws it, and its title.
class ZEVTokenAnswers : public QObject, public OEXTokenFieldCellDelegate {
    Q_OBJECT

public:
    explicit ZEVTokenAnswers(OEXTokenField *field);

    bool showsTokenForRepresentedObject(const OEXTokenFieldCell *cell, const QVariant &object) const override;
    std::unique_ptr<ZEVTextAttachmentCell>
    attachmentCellForRepresentedObject(const OEXTokenFieldCell *cell, const QVariant &object) const override;
    std::optional<QString> displayStringForRepresentedObject(const OEXTokenFieldCell *cell,
                                                             const QVariant &object) const override;

private:
    OEXTokenField *m_field;
};
