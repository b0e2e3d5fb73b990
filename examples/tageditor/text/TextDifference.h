// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QStringView>

/// Where a text and what a transform made of it differ, to be highlighted: an unchanged text has no ranges.
struct TextDifference {
    QList<ZEVRange> before; ///< UTF-16 units, joined where they touch
    QList<ZEVRange> after;

    /// Good for transforms that only replace and leave out, in place. What is left out is a range before
    /// without one after.
    static TextDifference between(QStringView before, QStringView after);
};
