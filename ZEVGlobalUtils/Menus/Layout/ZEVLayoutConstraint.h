// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QWidget;

/// A rule between two widgets' edges or centres, in points: first relation second * multiplier + constant. A
/// value that does not keep its widgets.
struct ZEVLayoutConstraint {
    /// Leading is left, in a window from right to left right. Positions grow away from the leading edge and
    /// downwards.
    enum Attribute { Leading, Trailing, CenterX, Top, Bottom, CenterY };
    enum Relation { LessThanOrEqual = -1, Equal = 0, GreaterThanOrEqual = 1 };

    const QWidget *firstItem = nullptr;
    Attribute firstAttribute = Leading;
    Relation relation = Equal;
    const QWidget *secondItem = nullptr;
    Attribute secondAttribute = Leading;
    qreal multiplier = 1;
    qreal constant = 0;

    friend bool operator==(const ZEVLayoutConstraint &, const ZEVLayoutConstraint &) = default;
};
