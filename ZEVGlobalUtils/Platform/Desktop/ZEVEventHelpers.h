// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QEvent;

namespace ZEVEventHelpers {

/// Whether \a event is a key press whose whole text is a carriage return or the keypad's Enter (3).
ZEV_EXPORT bool isEnterKey(const QEvent &event);

} // namespace ZEVEventHelpers
