// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringList>

/// What the application is asked for when it is started.
struct CommandLine {
    QStringList files; ///< or a folder; empty when none was named
    QString findText;
    qint64 matchingType = 0;
    bool isCaseSensitive = false;
    bool writesReport = false;
    bool quits = false;
    bool isDark = false;
    QString screenshotFile; ///< with the gallery, the folder of its pages' pictures
    bool showsGallery = false;
    bool isInactive = false; ///< another window has the focus while the gallery is pictured

    /// Beside the installed binary, else where the sources are.
    static QString sampleFolder();

    /// Leaves the process with a message where the arguments cannot be understood or ask for help.
    static CommandLine parsed(const QCoreApplication &application);

    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};
