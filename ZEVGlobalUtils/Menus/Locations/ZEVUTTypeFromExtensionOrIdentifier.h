// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

#include <optional>

/// A content type for ZEVUniformType, out of the name of a type ("public.image", "audio/flac") or, where
/// there is none of that name, out of a file-name extension ("flac"); nil for what is neither.
ZEV_EXPORT std::optional<QString> ZEVUTTypeFromExtensionOrIdentifier(const QString &string);
