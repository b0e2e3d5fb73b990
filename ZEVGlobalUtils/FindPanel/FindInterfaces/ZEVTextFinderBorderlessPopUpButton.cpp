// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>

#include <QFontMetricsF>
#include <QMenu>

namespace {

constexpr qsizetype MeasuredItems = 2;
constexpr qreal RoomForArrow = 15.0;

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
        const qreal title = metrics.horizontalAdvance(item->text().remove(u'&'));
        m_maxWidth = qMax(m_maxWidth, std::floor(title + imageWidth + RoomForArrow));
    }
    updateGeometry();
}

QSize ZEVTextFinderBorderlessPopUpButton::sizeHint() const
{
    return {qCeil(m_maxWidth), QToolButton::sizeHint().height()};
}
