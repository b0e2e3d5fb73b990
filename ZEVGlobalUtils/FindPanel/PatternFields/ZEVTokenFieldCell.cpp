// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldCell.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ButtonImageSize(12, 12);

/// Neither a frame nor a face: what shows is the image, and the field behind it.
void makeBorderless(QAbstractButton *button)
{
    if (auto *tool = qobject_cast<QToolButton *>(button))
        tool->setAutoRaise(true);
    button->setStyleSheet(u"QAbstractButton { border: none; padding: 0; background: transparent }"_s);
}

} // namespace

ZEVTokenFieldCell::~ZEVTokenFieldCell()
{
    delete m_actionButton;
    delete m_rightButton;
}

QAbstractButton *ZEVTokenFieldCell::cellButtonWithImageNamed(QStringView name,
                                                             const std::function<void()> &action)
{
    auto *button = new QToolButton;
    button->setIcon(ZEVNamedImages::imageNamed(name));
    button->setIconSize(ButtonImageSize);
    makeBorderless(button);
    QObject::connect(button, &QAbstractButton::clicked, button, action);
    return button;
}

QAbstractButton *ZEVTokenFieldCell::actionButton() const { return m_actionButton; }
QAbstractButton *ZEVTokenFieldCell::rightButton() const { return m_rightButton; }

void ZEVTokenFieldCell::setActionButton(QAbstractButton *button)
{
    adopt(m_actionButton, button);
    if (button)
        button->setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Show Menu"));
}

void ZEVTokenFieldCell::setRightButton(QAbstractButton *button)
{
    adopt(m_rightButton, button);
    if (button)
        makeBorderless(button);
}

void ZEVTokenFieldCell::adopt(QPointer<QAbstractButton> &slot, QAbstractButton *button)
{
    if (slot && slot != button) {
        slot->setParent(nullptr);
        slot->deleteLater(); // it may be the one that was just pressed
    }
    slot = button;
    if (button) {
        button->setCursor(Qt::ArrowCursor);
        button->setParent(controlView());
        button->setVisible(controlView() != nullptr);
    }
    geometryDidChange();
}

void ZEVTokenFieldCell::setButtonWidth(qreal width)
{
    m_buttonWidth = width;
    geometryDidChange();
}

void ZEVTokenFieldCell::setRightButtonWidth(qreal width)
{
    m_rightButtonWidth = width;
    geometryDidChange();
}

void ZEVTokenFieldCell::setControlView(QWidget *view)
{
    OEXTokenFieldCell::setControlView(view);
    for (QAbstractButton *button : {m_actionButton.data(), m_rightButton.data()}) {
        if (!button)
            continue;
        button->setParent(view);
        button->setVisible(view != nullptr);
    }
}

QRectF ZEVTokenFieldCell::buttonRectForBounds(const QRectF &bounds) const
{
    if (!m_actionButton)
        return {};
    QRectF frame = bounds.adjusted(1, 1, -1, -1);
    frame.setWidth(m_buttonWidth);
    return frame;
}

QRectF ZEVTokenFieldCell::rightButtonRectForBounds(const QRectF &bounds) const
{
    if (!m_rightButton)
        return {};
    QRectF frame = bounds.adjusted(1, 1, -1, -1);
    frame.setLeft(frame.right() - m_rightButtonWidth - 1.0);
    frame.setWidth(m_rightButtonWidth);
    return frame;
}

/// Kept: the bezel stands back above and below, but not at the sides.
QRectF ZEVTokenFieldCell::drawingRectForBounds(const QRectF &bounds) const
{
    QRectF drawing = OEXTokenFieldCell::drawingRectForBounds(bounds);
    if (isBezeled()) {
        drawing.setLeft(bounds.left());
        drawing.setRight(bounds.right());
    }
    if (m_actionButton)
        drawing.setLeft(drawing.left() + m_buttonWidth);
    if (m_rightButton)
        drawing.setRight(drawing.right() - m_rightButtonWidth);
    return drawing;
}

void ZEVTokenFieldCell::layOutButtons(const QRect &bounds)
{
    place(m_actionButton, buttonRectForBounds(bounds), bounds);
    place(m_rightButton, rightButtonRectForBounds(bounds), bounds);
}

void ZEVTokenFieldCell::place(QAbstractButton *button, const QRectF &frame, const QRect &bounds) const
{
    if (button && controlView())
        button->setGeometry(
            QStyle::visualRect(controlView()->layoutDirection(), bounds, frame.toAlignedRect()));
}
