// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVPasteboardWriting.h>

#include <ZEVGlobalUtils/Platform/ZEVUniformType.h>

ZEVPasteboardWriting::~ZEVPasteboardWriting() = default;

QStringList ZEVPasteboardWriting::mimeTypesForType(QStringView type) const
{
    return ZEVUniformType::mimeTypes(type);
}
