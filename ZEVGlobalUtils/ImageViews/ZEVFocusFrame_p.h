// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// The frame of a widget that has the keyboard, on top of all that is in it.
class ZEVFocusFrame : public QWidget {
    Q_OBJECT

public:
    explicit ZEVFocusFrame(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
