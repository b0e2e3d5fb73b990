// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>

/// The matches within one cell, in its own UTF-16 units.
struct ZEVCellMatches {
    QList<ZEVRange> ranges;
    qsizetype current = -1; ///< index of the current match in ranges, or -1
};
