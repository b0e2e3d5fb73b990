// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVGlobalHelper.h>

#include <ZEVGlobalUtils/Platform/ZEVLocalizedStrings.h>

QString ZEVGlobalHelper::localizedStringForKey(QStringView key)
{
    return ZEVLocalizedStrings::localizedString(key);
}
