// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMimeData>
#include <QVariantList>

class OEXTokenField;

/// A piece of a token field's value on its way through a clipboard or a drag. Within the process the objects
/// travel as they are; other processes find them archived, and all others the text form.
class ZEVTokenMimeData : public QMimeData {
    Q_OBJECT

public:
    explicit ZEVTokenMimeData(const QVariantList &objects);

    static bool canBeRead(const QMimeData *data);

    /// The objects that \a field understands; nil when \a data has no tokens, or only damaged ones.
    static std::optional<QVariantList> objects(const QMimeData *data, const OEXTokenField *field);

private:
    QVariantList m_objects;
};
