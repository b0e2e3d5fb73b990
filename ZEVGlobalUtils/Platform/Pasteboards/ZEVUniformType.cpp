// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QMimeDatabase>

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
    if (isEqual(general, Image))
        return mimeTypes(identifier).first().startsWith(u"image/");
    if (isEqual(general, Audio))
        return mimeTypes(identifier).first().startsWith(u"audio/");
    const QMimeType type = QMimeDatabase().mimeTypeForName(mimeTypes(identifier).first());
    return type.isValid() && type.inherits(canonicalMimeType(mimeTypes(general).first()));
}

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
