// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

#include <QVariant>

/// What a placeholder captured: a string, or a number or date where its item says so. The host makes them.
struct ZEVOrvCaptureMatch {
    ZEVPatternItem patternItem;
    QVariant value;
};
