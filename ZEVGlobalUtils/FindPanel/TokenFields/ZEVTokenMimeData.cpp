// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenMimeData_p.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldDelegate.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

using namespace Qt::StringLiterals;

namespace {

const QString TokensType = u"application/x-zevglobalutils-tokens"_s;

/// An archive need not hold all of an object: what the field itself knows under its text is more.
QVariant objectKnownToField(const QVariant &object, const OEXTokenField *field)
{
    const OEXTokenFieldDelegate *delegate = field->delegate();
    if (!delegate || object.typeId() == QMetaType::QString)
        return object;
    const std::optional<QString> text = delegate->editingStringForRepresentedObject(field, object);
    const QVariant known = text ? delegate->representedObjectForEditingString(field, *text) : QVariant();
    return known.isValid() ? known : object;
}

} // namespace

ZEVTokenMimeData::ZEVTokenMimeData(const QVariantList &objects)
    : m_objects(objects)
{
    setData(TokensType, ZEVKeyedArchiver::archivedDataWithRootObject(objects));
}

bool ZEVTokenMimeData::canBeRead(const QMimeData *data) { return data->hasFormat(TokensType); }

std::optional<QVariantList> ZEVTokenMimeData::objects(const QMimeData *data, const OEXTokenField *field)
{
    if (const auto *own = qobject_cast<const ZEVTokenMimeData *>(data))
        return own->m_objects;
    if (!canBeRead(data))
        return std::nullopt;
    auto objects = ZEVKeyedUnarchiver::unarchivedObjectOfClass<QVariantList>(data->data(TokensType));
    if (!objects)
        return std::nullopt;
    objects->removeIf([](const QVariant &object) { return !object.isValid(); });
    for (QVariant &object : *objects)
        object = objectKnownToField(object, field);
    return objects;
}
