// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QToolButton>

/// A pop-up button without a frame, as wide as the wider of the first two items of its menu.
class ZEV_EXPORT ZEVTextFinderBorderlessPopUpButton : public QToolButton {
    Q_OBJECT

public:
    explicit ZEVTextFinderBorderlessPopUpButton(QWidget *parent = nullptr);

    /// In points; 0 for a menu without items.
    qreal maxWidth() const { return m_maxWidth; }

    /// The item whose image the button shows; null at first.
    void selectItem(QAction *item);

    /// Measures the items of the menu, once they are there.
    void setUp();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QAction> m_selectedItem;
    qreal m_maxWidth = 0;
};
