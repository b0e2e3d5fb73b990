// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QIcon>
#include <QPixmap>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;
class ZEVError;

/// A question that stops the user until it is answered. All of its texts are shown as they stand, never as
/// rich text or with mnemonics. Main thread only.
class ZEV_EXPORT ZEVAlert {
public:
    /// The answer of the first button; the following ones count on from it.
    static constexpr int FirstButtonReturn = 1000;
    static constexpr int NoButton = -1;

    /// The error's texts, and a button for each of its recovery options, or "OK" where it has none.
    static ZEVAlert alertWithError(const ZEVError &error);

    std::optional<QString> windowTitle; ///< nil is the application's name; an empty one shows none
    QString messageText;
    QString informativeText;
    QIcon icon; ///< a null one is that of a warning
    QStringList buttons; ///< as they stand from left to right; the first is the default, none becomes "OK"
    int escapeButton = NoButton; ///< the index of the one that the Escape key presses
    int destructiveButton = NoButton;

    bool showsSuppressionButton = false;
    QString suppressionTitle;
    bool isSuppressed = false; ///< whether its box is ticked

    /// What the question is about: shown below the texts, one below the other.
    struct Item {
        QPixmap picture;
        QString text; ///< its lines, as they stand
    };
    QList<Item> items;

    /// Returns the button's answer; closing the window is the last button's. A quitting application closes
    /// it.
    int runModal(QWidget *parent = nullptr);

    /// Shows the alert on \a window alone, and returns; \a handler gets what runModal() would have returned,
    /// unless the window is gone by then.
    void beginSheetModalForWindow(QWidget *window, const std::function<void(int)> &handler);

    /// Answers alerts in the dialog's place. Puts \a runner there and returns the one before; an empty one
    /// brings the dialog back.
    using Runner = std::function<int(ZEVAlert &)>;
    static Runner setRunner(const Runner &runner);
};
