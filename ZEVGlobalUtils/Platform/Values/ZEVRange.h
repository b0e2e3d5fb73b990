// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTypeInfo>

/// A stretch of text in UTF-16 code units. Neither number is ever negative.
struct ZEVRange {
    qsizetype location = 0;
    qsizetype length = 0;

    constexpr qsizetype end() const { return location + length; }
    friend constexpr bool operator==(const ZEVRange &, const ZEVRange &) = default;
};

Q_DECLARE_TYPEINFO(ZEVRange, Q_PRIMITIVE_TYPE);
