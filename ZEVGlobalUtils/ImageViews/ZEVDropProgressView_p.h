// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QTimer;

/// Tells that a file is still being read, and lets the user give it up. Appears only when that takes long.
class ZEVDropProgressView : public QWidget {
    Q_OBJECT

public:
    explicit ZEVDropProgressView(QWidget *parent);

    void begin();
    void end();

Q_SIGNALS:
    void cancelled();

private:
    QTimer *m_delay;
};
