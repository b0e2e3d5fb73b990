// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWidget>

#include <functional>

/// Asks the user for a folder or a file. Main thread only.
class ZEV_EXPORT ZEVOpenPanel {
public:
    static constexpr int OKResponse = 1;
    static constexpr int CancelResponse = 0;

    QString title;
    QString prompt; ///< of the button that confirms
    QString message; ///< what stands above the folders
    QPointer<QWidget> window; ///< that the panel belongs to; null for the active one
    QUrl directoryURL; ///< where it begins
    bool canChooseFiles = false; ///< for a file, in place of a folder
    bool onlyExecutables = false; ///< of the files, those that can be run
    QStringList allowedContentTypes; ///< of files, see ZEVUniformType; empty allows all
    QString allowedFilesName; ///< what the user is told of them, such as "Images"; may be empty
    QUrl URL; ///< what was chosen, once it was

    int runModal();

    /// Answers in the dialog's place. Puts \a runner there and returns the one before; an empty one brings
    /// the dialog back.
    using Runner = std::function<int(ZEVOpenPanel &)>;
    static Runner setRunner(const Runner &runner);
};
