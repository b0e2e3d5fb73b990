// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVUTTypeFromExtensionOrIdentifier.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QMimeDatabase>

using namespace Qt::StringLiterals;

namespace {

bool isIdentifier(const QString &string)
{
    return ZEVUniformType::isKind(string) || ZEVUniformType::mimeTypes(string) != QStringList{string};
}

} // namespace

std::optional<QString> ZEVUTTypeFromExtensionOrIdentifier(const QString &string)
{
    if (isIdentifier(string))
        return string;
    const QMimeDatabase database;
    if (const QMimeType type = database.mimeTypeForName(string); type.isValid())
        return type.name();
    const QMimeType type = database.mimeTypeForFile(u"name."_s + string, QMimeDatabase::MatchExtension);
    return type.isDefault() ? std::nullopt : std::optional(type.name());
}
