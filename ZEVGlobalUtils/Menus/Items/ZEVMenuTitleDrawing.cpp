// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuKeeper_p.h>

#include <QActionEvent>
#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QPaintEvent>
#include <QPointer>
#include <QStyle>
#include <QWidgetAction>

#include <algorithm>

using namespace ZEVMenuTitleDrawing;

namespace {

/// A menu tells only its heirs how it asks for an item.
struct OptionOfMenu : QMenu {
    static QStyleOptionMenuItem option(const QMenu &menu, const QAction *item)
    {
        QStyleOptionMenuItem option;
        (menu.*(&OptionOfMenu::initStyleOption))(&option, item);
        return option;
    }
};

/// Nil where the style, or the item's own widget, draws what is to be seen.
std::optional<ShownTitle> overdrawnTitle(const QAction *item)
{
    return qobject_cast<const QWidgetAction *>(item) ? std::nullopt : shownTitle(item);
}

bool hasOverdrawnTitle(const QMenu &menu)
{
    return std::ranges::any_of(menu.actions(), [](auto *item) { return overdrawnTitle(item).has_value(); });
}

/// The part of the menu in which items lie. Where they do not fit, the menu's scrollers cover the outer ones.
QRect itemArea(const QMenu &menu)
{
    QRect items;
    for (QAction *item : menu.actions())
        items |= menu.actionGeometry(item); // empty where the item is not visible
    const QStyle *style = menu.style();
    const int frame = style->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, &menu);
    const int scroller = style->pixelMetric(QStyle::PM_MenuScrollerHeight, nullptr, &menu);
    const QRect inside = menu.rect().adjusted(0, frame, 0, -frame);
    const bool scrollsUp = items.top() < inside.top();
    const bool scrollsDown = items.bottom() > inside.bottom();
    return inside.adjusted(0, scrollsUp ? scroller : 0, 0, scrollsDown ? -scroller : 0);
}

/// The menu's ground once more, for the text that the style has drawn must go.
void drawPanel(QPainter &painter, const QMenu &menu, const QRect &item)
{
    if (menu.testAttribute(Qt::WA_TranslucentBackground)) {
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(item, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    QStyleOptionMenuItem panel;
    panel.initFrom(&menu);
    panel.state = QStyle::State_None;
    panel.checkType = QStyleOptionMenuItem::NotCheckable;
    panel.maxIconWidth = 0;
    menu.style()->drawPrimitive(QStyle::PE_PanelMenu, &panel, &painter, &menu);
}

void drawItem(QPainter &painter, const QMenu &menu, const QAction *item, const ShownTitle &title)
{
    QStyleOptionMenuItem option = styleOption(menu, item);
    option.rect = menu.actionGeometry(const_cast<QAction *>(item));
    const auto place = textPlace(menu, option);
    if (!place)
        return;
    const qsizetype tab = option.text.indexOf(u'\t');
    option.text = tab < 0 ? QString() : option.text.sliced(tab); // only the shortcut
    painter.setClipRect(option.rect & itemArea(menu));
    drawPanel(painter, menu, option.rect);
    menu.style()->drawControl(QStyle::CE_MenuItem, &option, &painter, &menu);
    drawTitle(painter, title, *place, option.direction);
}

void drawTitles(QMenu &menu, const QRect &dirty)
{
    QPainter painter(&menu);
    for (QAction *item : menu.actions()) {
        const auto title = overdrawnTitle(item);
        if (title && item->isVisible() && dirty.intersects(menu.actionGeometry(item)))
            drawItem(painter, menu, item, *title);
    }
}

/// An action is not told which menus it comes into; they are.
class KeeperMaker : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *menu = event->type() == QEvent::ActionAdded ? qobject_cast<QMenu *>(watched) : nullptr;
        if (menu && shownTitle(static_cast<QActionEvent *>(event)->action()))
            ZEVMenuKeeper::keeperOfMenu(menu);
        return false;
    }
};

} // namespace

void ZEVMenuTitleDrawing::begin()
{
    static QPointer<KeeperMaker> maker; // goes with the application, of which a test may make several
    if (maker || !qApp)
        return;
    maker = new KeeperMaker(qApp);
    qApp->installEventFilter(maker);
}

bool ZEVMenuTitleDrawing::paint(QMenu *menu, QPaintEvent *event)
{
    if (!hasOverdrawnTitle(*menu))
        return false;
    static_cast<QObject *>(menu)->event(event); // past the menu's filters
    drawTitles(*menu, event->rect());
    return true;
}

QStyleOptionMenuItem ZEVMenuTitleDrawing::styleOption(const QMenu &menu, const QAction *item)
{
    return OptionOfMenu::option(menu, item);
}

void ZEVMenuTitleDrawing::drawTitle(QPainter &painter, const ShownTitle &title, const TextPlace &place,
                                    Qt::LayoutDirection direction)
{
    QTextLayout layout(title.text.string(), place.font);
    QTextOption option;
    // Latin text in a menu from right to left stays in its own order: a token keeps its outer spaces.
    option.setTextDirection(title.text.string().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setFormats(title.text.formats());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (!line.isValid())
        return;
    line.setLineWidth(0); // without wrapping it is as long as its text
    layout.endLayout();
    const QRectF drawn = line.naturalTextRect();
    const qreal indent = QFontMetricsF(place.font).horizontalAdvance(title.indentation);
    const qreal left = direction == Qt::RightToLeft ? -indent - drawn.width() : indent;
    painter.setPen(place.pen);
    line.draw(&painter, place.baseline + QPointF(left - drawn.left(), -line.ascent()));
}
