// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>
#include <QWidget>

/// The backdrop of the find bar, as wide as the widget that it lies in.
class ZEV_EXPORT ZEVTextFinderBackgroundView : public QWidget {
    Q_OBJECT

public:
    explicit ZEVTextFinderBackgroundView(QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void udpateBackgroundColor(); // kept: spelled so
    void pinToSuperview();

    QColor m_backgroundColor;
};
