// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

/// Binds a capture group of a search to the item whose text it captures. ZEVFindPanelQuery::captureGroups()
/// makes and counts them: the e-mail and web-address items have groups inside, so it is not one group an item.
struct ZEVOrvCaptureGroup {
    ZEVPatternItem patternItem;
    qint64 index = 0; ///< number of the group in the expression
};
