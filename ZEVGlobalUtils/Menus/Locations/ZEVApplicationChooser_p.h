// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QUrl>

namespace ZEVApplicationChooser {

/// Asks the user for one of the desktop's applications or, by way of a panel, for any executable; invalid
/// when cancelled.
QUrl chooseApplication();

} // namespace ZEVApplicationChooser
