// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QAbstractButton>

/// The magnifier in a filter field: faint while nothing is filtered.
class ZEV_EXPORT ZEVFilterSearchFieldButtonCell : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(bool active READ active WRITE setActive)

public:
    explicit ZEVFilterSearchFieldButtonCell(QWidget *parent = nullptr);

    bool active() const { return m_active; }
    void setActive(bool active);

    QSize sizeHint() const override { return {16, 16}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawWithFrame(QPainter *painter, const QRectF &frame) const;

    bool m_active = false;
};
