// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>

#include <QPointer>

#include <functional>

class QAbstractButton;

/// The cell of a pattern field, with room for a button at either end. Sizes are in points.
class ZEV_EXPORT ZEVTokenFieldCell : public OEXTokenFieldCell {
public:
    ~ZEVTokenFieldCell() override;

    /// A button without a border that shows one of the library's images.
    static QAbstractButton *cellButtonWithImageNamed(QStringView name, const std::function<void()> &action);

    /// Before the text; opens the drop-down menu. The cell owns its buttons and deletes the one that a new
    /// one replaces; null takes it away.
    QAbstractButton *actionButton() const;
    void setActionButton(QAbstractButton *button);

    /// Behind the text. It keeps the accessible name that its maker gives it.
    QAbstractButton *rightButton() const;
    void setRightButton(QAbstractButton *button);

    qreal buttonWidth() const { return m_buttonWidth; }
    void setButtonWidth(qreal width);
    qreal rightButtonWidth() const { return m_rightButtonWidth; }
    void setRightButtonWidth(qreal width);

    /// Empty without the button. In right-to-left windows the field mirrors what these rectangles say.
    QRectF buttonRectForBounds(const QRectF &bounds) const;
    QRectF rightButtonRectForBounds(const QRectF &bounds) const;
    QRectF drawingRectForBounds(const QRectF &bounds) const override;
    void setControlView(QWidget *view) override;
    void layOutButtons(const QRect &bounds) override;

private:
    void place(QAbstractButton *button, const QRectF &frame, const QRect &bounds) const;
    void adopt(QPointer<QAbstractButton> &slot, QAbstractButton *button);

    QPointer<QAbstractButton> m_actionButton;
    QPointer<QAbstractButton> m_rightButton;
    qreal m_buttonWidth = 18.0;
    qreal m_rightButtonWidth = 24.0;
};
