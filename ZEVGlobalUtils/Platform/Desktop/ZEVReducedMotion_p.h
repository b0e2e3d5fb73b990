// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace ZEVReducedMotion {

/// Whether the user's desktop asks for no animations: the style says so for all widgets alike.
bool isRequested(const QWidget *view);

} // namespace ZEVReducedMotion
