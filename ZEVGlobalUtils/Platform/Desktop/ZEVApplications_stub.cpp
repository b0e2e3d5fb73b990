// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplications_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QProcess>

using namespace Qt::StringLiterals;

// Without a database of associations that is known here, only executables that the user picks open files.

QUrl ZEVApplications::URLForApplicationToOpenURL(const QUrl &) { return {}; }
QList<QUrl> ZEVApplications::applicationURLsForURL(const QUrl &) { return {}; }
QList<QUrl> ZEVApplications::applicationURLs() { return {}; }
QUrl ZEVApplications::mainApplicationURL() { return {}; }

QString ZEVApplications::displayName(const QUrl &application) { return ZEVFileURL::displayName(application); }
QString ZEVApplications::version(const QUrl &) { return {}; }
QIcon ZEVApplications::icon(const QUrl &application) { return ZEVWorkspace::iconForFile(application); }

std::optional<ZEVApplications::LaunchFailure> ZEVApplications::open(const QList<QUrl> &urls,
                                                                    const QUrl &application)
{
    QStringList arguments;
    for (const QUrl &url : urls)
        arguments.append(url.isLocalFile() ? url.toLocalFile() : url.toString());
    if (QProcess::startDetached(application.toLocalFile(), arguments))
        return std::nullopt;
    return LaunchFailure{-1, u"it did not start"_s};
}
