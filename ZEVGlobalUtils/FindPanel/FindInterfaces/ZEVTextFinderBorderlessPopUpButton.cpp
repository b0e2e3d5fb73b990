// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>

#include <QFontMetricsF>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {

constexpr qsizetype MeasuredItems = 2;
constexpr qreal RoomForArrow = 15.0;
constexpr int ArrowSide = 11; ///< of that room, so that the text keeps some distance

} // namespace

ZEVTextFinderBorderlessPopUpButton::ZEVTextFinderBorderlessPopUpButton(QWidget *parent)
    : QToolButton(parent)
{
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setUp();
}

void ZEVTextFinderBorderlessPopUpButton::setUp()
{
    const QFontMetricsF metrics(font());
    // Kept: the image of the selected item counts for every item.
    const QList<QSize> images = m_selectedItem ? m_selectedItem->icon().availableSizes() : QList<QSize>();
    const qreal imageWidth = images.isEmpty() ? 0 : images.first().width();
    m_maxWidth = 0;
    const QList<QAction *> items = menu() ? menu()->actions() : QList<QAction *>();
    for (const QAction *item : items.first(qMin(MeasuredItems, items.size()))) {
        const qreal title = metrics.horizontalAdvance(ZEVMenuItem::title(item));
        m_maxWidth = qMax(m_maxWidth, std::floor(title + imageWidth + RoomForArrow));
    }
    updateGeometry();
}

QSize ZEVTextFinderBorderlessPopUpButton::sizeHint() const
{
    return {qCeil(m_maxWidth), QToolButton::sizeHint().height()};
}

void ZEVTextFinderBorderlessPopUpButton::selectItem(QAction *item) { m_selectedItem = item; }

/// The face is the text and then the arrow: a style would centre the text and lay the arrow upon it.
void ZEVTextFinderBorderlessPopUpButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QString text = std::exchange(option.text, {});
    option.features = QStyleOptionToolButton::None;
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const auto placed = [&](const QRect &place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    const QRect face = placed(rect().adjusted(2, 0, -ArrowSide, 0));
    painter.drawItemText(face, int(Qt::AlignVCenter | Qt::AlignLeading) | Qt::TextShowMnemonic, palette(),
                         isEnabled(), text, QPalette::ButtonText);
    option.rect = placed({width() - ArrowSide, (height() - ArrowSide) / 2, ArrowSide - 2, ArrowSide});
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
}
