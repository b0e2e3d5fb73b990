// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringList>
#include <QStringView>

/// Uniform type identifiers beside MIME types: a type is asked for by its identifier and travels under its
/// MIME name. Identifiers that stand in no table here are their own MIME names.
namespace ZEVUniformType {

inline constexpr QStringView Image = u"public.image";
inline constexpr QStringView TIFF = u"public.tiff";
inline constexpr QStringView BMP = u"com.microsoft.bmp";
inline constexpr QStringView GIF = u"com.compuserve.gif";
inline constexpr QStringView JPEG = u"public.jpeg";
inline constexpr QStringView PNG = u"public.png";
inline constexpr QStringView WebP = u"org.webmproject.webp";
inline constexpr QStringView AVIF = u"public.avif";
inline constexpr QStringView URL = u"public.url";
inline constexpr QStringView FileURL = u"public.file-url";
inline constexpr QStringView Audio = u"public.audio";
inline constexpr QStringView Folder = u"public.folder";
inline constexpr QStringView Movie = u"public.movie";
inline constexpr QStringView Text = u"public.text";
inline constexpr QStringView Data = u"public.data"; ///< whatever is no folder, as Content
inline constexpr QStringView Content = u"public.content";
inline constexpr QStringView Item = u"public.item"; ///< folders, too

/// Identifiers are compared without regard to case.
ZEV_EXPORT bool isEqual(QStringView one, QStringView other);

/// Whether data of \a identifier may stand where \a general is asked for: every type conforms to itself,
/// every kind of picture to Image, of sound to Audio, of film to Movie and of text to Text, and to what these
/// conform to themselves.
ZEV_EXPORT bool conformsTo(QStringView identifier, QStringView general);

/// Whether \a identifier stands for a kind of data of many formats, and has no MIME name of its own.
ZEV_EXPORT bool isKind(QStringView identifier);

/// The names under which other programs offer the type, the usual one first.
ZEV_EXPORT QStringList mimeTypes(QStringView identifier);

/// The identifier of what is offered as \a mimeType.
ZEV_EXPORT QString identifierForMimeType(const QString &mimeType);

} // namespace ZEVUniformType
