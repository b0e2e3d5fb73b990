// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

namespace ZEVStringFilterRegexValue {

/// An expression for every text that has the space-separated words of \a string in their order, whatever the
/// case and whatever stands between them; each word is a capture group. Nil for an empty string.
ZEV_EXPORT std::optional<ZEVRegularExpression> filterRegexValue(const QString &string);

} // namespace ZEVStringFilterRegexValue
