// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Files/ZEVErrorSolver.h>

#include <optional>

class QWidget;

/// Presents the ways to recover from an error to the user. The responder is the widget that the user works
/// in; it may be null. Main thread only.
namespace ZEVResponderErrorHandler {

/// As every error of the application is presented; whether the problem is solved.
ZEV_EXPORT bool presentErrorSolver(QWidget *responder, const ZEVErrorSolver::Pointer &solver);

/// On \a window alone, without waiting: the solver's completion handler gets the outcome.
ZEV_EXPORT void presentErrorSolver(QWidget *responder, const ZEVErrorSolver::Pointer &solver,
                                   QWidget *modalForWindow);

/// For a batch: an index in \a appliedToAllResponse, 0 included, is taken for the answer, and one comes to be
/// there when the user ticks "Apply to All". Whether the problem is solved.
ZEV_EXPORT bool presentErrorSolver(QWidget *responder, const ZEVErrorSolver::Pointer &solver,
                                   std::optional<qint64> *appliedToAllResponse, bool showsSuppressionButton);

} // namespace ZEVResponderErrorHandler
