// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>
#include <QUrl>

#include <functional>

/// Asks the user for a folder. Main thread only.
class ZEV_EXPORT ZEVOpenPanel {
public:
    static constexpr int OKResponse = 1;
    static constexpr int CancelResponse = 0;

    QString title;
    QString prompt; ///< of the button that confirms
    QString message; ///< what stands above the folders
    QUrl directoryURL; ///< where it begins
    QUrl URL; ///< what was chosen, once it was

    int runModal();

    /// Answers in the dialog's place. Puts \a runner there and returns the one before; an empty one brings
    /// the dialog back.
    using Runner = std::function<int(ZEVOpenPanel &)>;
    static Runner setRunner(const Runner &runner);
};
