// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QProgressBar;

/// How far something is that takes its time, with a way to stop it. Hidden at first.
class ProgressView : public QWidget {
    Q_OBJECT

public:
    /// Screen readers call the bar by \a name.
    explicit ProgressView(const QString &name, QWidget *parent = nullptr);

    QProgressBar *bar() const { return m_bar; }

Q_SIGNALS:
    void cancelled();

private:
    QProgressBar *m_bar;
};
