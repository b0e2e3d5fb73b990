// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariantList>

class ZEVAttributedString;

/// How a pattern is shown. A pattern is a list of QString and ZEVPatternItem; elements of any other kind are
/// skipped everywhere.
namespace ZEVArrayPatternDisplaySupport {

/// Literal text as typed, each item as its token title on a coloured background: green for a wildcard, the
/// palette's highlight for a metadata placeholder.
ZEV_EXPORT ZEVAttributedString patternDisplayString(const QVariantList &pattern);

/// Each item as its token title in square brackets.
ZEV_EXPORT QString patternRawDisplayString(const QVariantList &pattern);

} // namespace ZEVArrayPatternDisplaySupport
