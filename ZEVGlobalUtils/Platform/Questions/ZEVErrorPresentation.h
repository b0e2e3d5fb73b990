// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <functional>

class ZEVError;

/// How errors that are meant for the user reach the user. Main thread only but where it says
/// otherwise.
namespace ZEVErrorPresentation {

using Presenter = std::function<void(const ZEVError &)>;

/// Shows \a error through the host's presenter, else in an alert of plain text; without a QApplication it is
/// logged. One that carries ways to recover from it always comes as an alert with a button for each; true
/// when the way that was chosen has solved the problem.
ZEV_EXPORT bool presentError(const ZEVError &error);

/// The same, once the main thread comes back to its events: for those that must not show an alert where they
/// are, in a drag or on another thread. Any thread; nothing happens where there is no application.
ZEV_EXPORT void presentErrorLater(const ZEVError &error);

/// Puts \a presenter in the alert's place and returns the one before; an empty one brings the alert back.
ZEV_EXPORT Presenter setPresenter(Presenter presenter);

} // namespace ZEVErrorPresentation
