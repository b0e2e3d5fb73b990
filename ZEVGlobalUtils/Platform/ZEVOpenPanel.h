// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <functional>

/// Asks the user for a folder or, with a filter, for one file. Main thread only.
class ZEV_EXPORT ZEVOpenPanel {
public:
    static constexpr int OKResponse = 1;
    static constexpr int CancelResponse = 0;

    QString title;
    QString prompt; ///< of the button that confirms
    QString message; ///< what stands above the folders
    QString nameFilter; ///< of a file, as QFileDialog has them: "Images (*.png *.jpg)"; empty for folders
    QPointer<QWidget> window; ///< that the panel belongs to; null for the active one
    QUrl directoryURL; ///< where it begins
    QUrl URL; ///< what was chosen, once it was

    int runModal();

    /// Answers in the dialog's place. Puts \a runner there and returns the one before; an empty one brings
    /// the dialog back.
    using Runner = std::function<int(ZEVOpenPanel &)>;
    static Runner setRunner(const Runner &runner);
};
