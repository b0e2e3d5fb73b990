// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QAbstractItemView;

namespace ZEVTableViewHelpers {

/// Scrolls up or down as little as shows the whole selection; where that does not fit, to its first row.
ZEV_EXPORT void scrollSelectionToVisible(QAbstractItemView *view);

/// Selects the first row where none is selected, and takes the keyboard focus once the current event is over.
ZEV_EXPORT void gainFocus(QAbstractItemView *view);

} // namespace ZEVTableViewHelpers
