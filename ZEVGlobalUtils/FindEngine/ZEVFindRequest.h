// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

class ZEVTextFinderUserInterface;

/// One search, as it travels from the interface that asks for it to the finder, its actor and its host.
struct ZEVFindRequest {
    ZEVFindPanelQuery query; ///< without a pattern where nothing but the expression is known
    std::optional<ZEVRegularExpression> expression; ///< nil searches for nothing
    ZEVTextFinderUserInterface *asker = nullptr; ///< who gets the count and has the replacement; may be null
};
