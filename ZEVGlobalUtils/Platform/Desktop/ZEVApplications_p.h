// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QList>
#include <QUrl>

#include <optional>

/// The applications of the desktop and what they open. An application is known by the URL of its desktop
/// entry (freedesktop.org's Desktop Entry Specification) or, to open files with it, of any executable.
/// Entries whose program is not there count as missing. Main thread only.
namespace ZEVApplications {

/// The user's choice for the kind of file that \a url is; invalid where there is none.
QUrl URLForApplicationToOpenURL(const QUrl &url);

/// All that can show or edit it, in the order of the user's associations.
QList<QUrl> applicationURLsForURL(const QUrl &url);

/// All that menus of applications show.
QList<QUrl> applicationURLs();

/// The running application; invalid where it has no desktop entry.
QUrl mainApplicationURL();

/// In the user's language; the file's name for what is no entry.
QString displayName(const QUrl &application);

/// Empty where the entry names none. The key "Version" does not: it is that of the entry's format.
QString version(const QUrl &application);

QIcon icon(const QUrl &application);

/// Why an application did not start.
struct LaunchFailure {
    int status = 0; ///< never 0
    QString reason;
};

/// Starts the application, without a shell, with all that it can take at once; the desktop is told that it
/// comes up.
std::optional<LaunchFailure> open(const QList<QUrl> &urls, const QUrl &application);

} // namespace ZEVApplications
