// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantList>

class ZEVPatternItem;

/// A pattern as one line of text: a token stands as its editing string between percent signs, such as
/// %(\d+)%, and a literal percent sign is doubled. Whatever is no token of the vocabulary is literal text, a
/// single percent sign too.
namespace PatternString {

/// The ten items that a line may hold.
QList<ZEVPatternItem> vocabulary();

/// A list of QString and ZEVPatternItem; empty for an empty line.
QVariantList patternFromText(QStringView text);

/// What to write into the line for \a item.
QString textForItem(const ZEVPatternItem &item);

} // namespace PatternString
