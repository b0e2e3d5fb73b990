// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Tells the desktop that an application comes up, so that it shows a busy pointer and lets the new window
/// come to the front (freedesktop.org's Startup Notification Protocol 0.1).
namespace ZEVStartupNotification {

/// An identifier that the application finds in its environment; null where the window system has no such
/// protocol.
QByteArray begin(const QByteArray &name, const QByteArray &iconName, const QByteArray &program);

/// For an application that did not start; otherwise it says so itself.
void cancel(const QByteArray &identifier);

} // namespace ZEVStartupNotification
