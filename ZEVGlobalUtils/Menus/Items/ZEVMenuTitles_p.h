// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace ZEVMenuTitles {

/// Another one whenever a title was set that the text of an item need not show.
quint64 version();

} // namespace ZEVMenuTitles
