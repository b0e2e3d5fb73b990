// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldDelegate.h>

#include <QObject>

class QMenu;
class ZEVTokenField;

/// The pattern items that fields offer and understand: their delegate, and what fills their insertion menus.
class ZEV_EXPORT ZEVPatternTokens : public QObject, public OEXTokenFieldDelegate {
    Q_OBJECT

public:
    using Groups = QList<QList<ZEVPatternItem>>;

    explicit ZEVPatternTokens(const Groups &groups, QObject *parent = nullptr);

    const Groups &groups() const { return m_groups; }
    void setGroups(const Groups &groups) { m_groups = groups; }

    /// Fills \a menu with an item for each of \a groups, with lines between the groups, that inserts its
    /// token into \a tokenField.
    static void fillMenu(QMenu *menu, ZEVTokenField *tokenField, const Groups &groups);

    ZEVTokenStyle styleForRepresentedObject(const OEXTokenField *tokenField,
                                            const QVariant &object) const override;
    AttachmentCellClass attachmentCellClassForRepresentedObject(const OEXTokenField *tokenField,
                                                                const QVariant &object) const override;
    std::optional<QString> displayStringForRepresentedObject(const OEXTokenField *tokenField,
                                                             const QVariant &object) const override;
    std::optional<QString> editingStringForRepresentedObject(const OEXTokenField *tokenField,
                                                             const QVariant &object) const override;
    QVariant representedObjectForEditingString(const OEXTokenField *tokenField,
                                               const QString &editingString) const override;
    /// The texts and editing strings, with a single percent sign between neighbours.
    bool writeRepresentedObjects(const OEXTokenField *tokenField, const QVariantList &objects,
                                 QMimeData *pasteboard) const override;

private:
    Groups m_groups;
};
