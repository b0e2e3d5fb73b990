// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/window/CommandLine.h>

#include <QObject>

class MainWindow;

/// Does what the command line asks for as soon as the folder is read and the window stands on the screen.
class AutomatedRun : public QObject {
    Q_OBJECT

public:
    AutomatedRun(MainWindow *window, const CommandLine &commandLine);

    /// A line for each match and one for their number.
    static QString report(MainWindow &window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void performWhenReady();
    void awaitPainting();
    void perform();
    bool saveScreenshot();

    MainWindow *m_window;
    CommandLine m_commandLine;
    bool m_isExposed = false;
    bool m_isRead = false;
    bool m_hasFailed = false;
    bool m_awaitsPainting = false;
};
