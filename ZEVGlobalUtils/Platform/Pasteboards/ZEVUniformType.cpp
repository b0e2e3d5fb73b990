// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QMimeDatabase>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Names {
    QStringView identifier;
    QStringList mimeTypes;
};

const QList<Names> &table()
{
    static const QList<Names> names{
        {ZEVUniformType::TIFF, {u"image/tiff"_s}},
        {ZEVUniformType::BMP, {u"image/bmp"_s, u"image/x-bmp"_s, u"image/x-MS-bmp"_s, u"image/x-ms-bmp"_s}},
        {ZEVUniformType::GIF, {u"image/gif"_s}},
        {ZEVUniformType::JPEG, {u"image/jpeg"_s, u"image/jpg"_s}},
        {ZEVUniformType::PNG, {u"image/png"_s}},
        {ZEVUniformType::WebP, {u"image/webp"_s}},
        {ZEVUniformType::AVIF, {u"image/avif"_s}},
        {ZEVUniformType::URL, {u"text/uri-list"_s}},
        {ZEVUniformType::FileURL, {u"text/uri-list"_s}},
        {ZEVUniformType::Folder, {u"inode/directory"_s}},
    };
    return names;
}

/// What the MIME names of a kind begin with; empty where they may be any.
struct Kind {
    QStringView identifier;
    QStringView prefix;
};

constexpr std::array Kinds = {
    Kind{ZEVUniformType::Image, u"image/"}, Kind{ZEVUniformType::Audio, u"audio/"},
    Kind{ZEVUniformType::Movie, u"video/"}, Kind{ZEVUniformType::Text, u"text/"},
    Kind{ZEVUniformType::Data, u""},        Kind{ZEVUniformType::Content, u""},
    Kind{ZEVUniformType::Item, u""},
};

const Kind *kindOf(QStringView identifier)
{
    const auto *const found = std::ranges::find_if(
        Kinds, [&](const Kind &kind) { return ZEVUniformType::isEqual(kind.identifier, identifier); });
    return found == Kinds.end() ? nullptr : found;
}

bool isOfKind(const QString &mimeType, const Kind &kind)
{
    if (ZEVUniformType::isEqual(kind.identifier, ZEVUniformType::Item))
        return true;
    if (ZEVUniformType::isEqual(kind.identifier, ZEVUniformType::Text)
        && QMimeDatabase().mimeTypeForName(mimeType).inherits(u"text/plain"_s))
        return true;
    return kind.prefix.isEmpty() ? !mimeType.startsWith(u"inode/") : mimeType.startsWith(kind.prefix);
}

QString canonicalMimeType(const QString &name)
{
    const QMimeType type = QMimeDatabase().mimeTypeForName(name);
    return type.isValid() ? type.name() : name;
}

} // namespace

bool ZEVUniformType::isEqual(QStringView one, QStringView other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool ZEVUniformType::conformsTo(QStringView identifier, QStringView general)
{
    if (isEqual(identifier, general))
        return true;
    if (const Kind *kind = kindOf(general)) {
        const Kind *own = kindOf(identifier);
        return own ? kind->prefix.isEmpty() && !isEqual(identifier, Item)
                   : isOfKind(mimeTypes(identifier).first(), *kind);
    }
    const QMimeType type = QMimeDatabase().mimeTypeForName(mimeTypes(identifier).first());
    return type.isValid() && type.inherits(canonicalMimeType(mimeTypes(general).first()));
}

bool ZEVUniformType::isKind(QStringView identifier) { return kindOf(identifier); }

QStringList ZEVUniformType::mimeTypes(QStringView identifier)
{
    for (const Names &names : table()) {
        if (isEqual(names.identifier, identifier))
            return names.mimeTypes;
    }
    return {identifier.toString()};
}

QString ZEVUniformType::identifierForMimeType(const QString &mimeType)
{
    for (const Names &names : table()) {
        if (names.mimeTypes.contains(mimeType, Qt::CaseInsensitive))
            return names.identifier.toString();
    }
    return mimeType;
}
