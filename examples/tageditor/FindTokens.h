// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ZEVPatternItem;

/// The tokens that can be found in tags, in the order of their menu.
QList<ZEVPatternItem> findTokens();
