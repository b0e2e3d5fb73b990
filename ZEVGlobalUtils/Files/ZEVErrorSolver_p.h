// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

/// Its address is the context of a solver's own presentations.
inline constexpr char ZEVErrorSolverContext = 0;
