// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardWriting.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

ZEVPasteboardWriting::~ZEVPasteboardWriting() = default;

QStringList ZEVPasteboardWriting::mimeTypesForType(QStringView type) const
{
    return ZEVUniformType::mimeTypes(type);
}
