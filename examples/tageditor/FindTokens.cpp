// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/FindTokens.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

QList<ZEVPatternItem> findTokens()
{
    return ZEVPatternItem::escapeItems()
        + QList<ZEVPatternItem>{ZEVPatternItem::tab(), ZEVPatternItem::lineBreak(), ZEVPatternItem::email(),
                                ZEVPatternItem::webAddress()};
}
