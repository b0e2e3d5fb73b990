// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QColor>
#include <QWidget>

/// A faint rounded frame around controls that belong together.
class ZEV_EXPORT ZEVTextFinderFakePopUpCellView : public QWidget {
    Q_OBJECT

public:
    explicit ZEVTextFinderFakePopUpCellView(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void udpateBorder(); // kept: spelled so

    QColor m_borderColor;
};
