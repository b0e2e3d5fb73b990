// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemScroller.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuKeeper_p.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace {

/// More than this is not taken in at a glance, and each costs time at every key that is typed.
constexpr qsizetype MostInView = 30;
constexpr qsizetype FewestInView = 4;

/// The part of a screen's height that the items may take, so that the menu stays beside what opened it.
constexpr qreal PartOfScreen = 0.6;

bool isSelectable(const QAction *item)
{
    return item->isVisible() && item->isEnabled() && !item->isSeparator();
}

/// A menu may be opened on any screen.
int heightOfLowestScreen()
{
    int height = QGuiApplication::primaryScreen()->availableSize().height();
    for (const QScreen *screen : QGuiApplication::screens())
        height = std::min(height, screen->availableSize().height());
    return height;
}

int heightOfItem(const QMenu &menu, const QAction *item)
{
    QStyleOptionMenuItem option = ZEVMenuTitleDrawing::styleOption(menu, item);
    const QSize text(1, option.fontMetrics.height());
    return menu.style()->sizeFromContents(QStyle::CT_MenuItem, &option, text, &menu).height();
}

/// A menu sizes itself anew at each item that comes or goes. Until this ends, an open one keeps its size and
/// its picture.
class Freeze {
public:
    explicit Freeze(QMenu *menu)
        : m_menu(menu)
        , m_smallest(menu->minimumSize())
        , m_isNeeded(menu->isVisible())
    {
        if (!m_isNeeded)
            return;
        m_menu->setUpdatesEnabled(false);
        m_menu->setFixedSize(m_menu->size());
    }

    ~Freeze()
    {
        if (!m_isNeeded)
            return;
        m_menu->setMinimumSize(m_smallest);
        m_menu->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        m_menu->setUpdatesEnabled(true);
    }

    Q_DISABLE_COPY_MOVE(Freeze)

private:
    QMenu *m_menu;
    QSize m_smallest;
    bool m_isNeeded;
};

} // namespace

ZEVMenuItemScroller *ZEVMenuItemScroller::scrollerOfMenu(QMenu *menu)
{
    return ZEVMenuKeeper::keeperOfMenu(menu)->scroller();
}

ZEVMenuItemScroller::ZEVMenuItemScroller(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
    , m_scrollBar(new QScrollBar(Qt::Vertical, menu))
{
    m_scrollBar->hide();
    m_scrollBar->setFocusPolicy(Qt::NoFocus);
    m_scrollBar->setCursor(Qt::ArrowCursor);
    connect(m_scrollBar, &QScrollBar::valueChanged, this, &ZEVMenuItemScroller::showFrom);
}

void ZEVMenuItemScroller::setItemsAfter(QAction *item, const QList<QAction *> &items)
{
    m_anchor = item;
    m_items = items;
    m_first = 0;
    m_capacity = capacity();
    {
        const Freeze freeze(m_menu);
        resetScrollBar();
        fill();
    }
    fitMenu();
}

/// It stands in the menu's margin.
void ZEVMenuItemScroller::resetScrollBar()
{
    const QSignalBlocker blocker(m_scrollBar);
    m_scrollBar->setRange(0, int(lastFirst()));
    m_scrollBar->setPageStep(int(m_capacity));
    m_scrollBar->setValue(0);
    m_scrollBar->setVisible(lastFirst() > 0);
    const int width = lastFirst() > 0 ? m_scrollBar->sizeHint().width() : 0;
    m_menu->setContentsMargins(m_menu->isRightToLeft() ? width : 0, 0, m_menu->isRightToLeft() ? 0 : width,
                               0);
}

void ZEVMenuItemScroller::scrollTo(qsizetype index)
{
    m_scrollBar->setValue(int(std::clamp<qsizetype>(index, 0, lastFirst())));
}

qsizetype ZEVMenuItemScroller::capacity() const
{
    if (m_items.isEmpty())
        return FewestInView;
    const int height = heightOfItem(*m_menu, m_items.first());
    const auto fitting = qsizetype(heightOfLowestScreen() * PartOfScreen / std::max(1, height));
    return std::clamp(fitting, FewestInView, MostInView);
}

qsizetype ZEVMenuItemScroller::lastFirst() const
{
    return std::max<qsizetype>(0, m_items.size() - m_capacity);
}

void ZEVMenuItemScroller::showFrom(qsizetype first)
{
    if (!isInStep())
        return;
    const qsizetype step = first - m_first;
    m_first = first;
    {
        const Freeze freeze(m_menu);
        if (qAbs(step) < m_capacity)
            shiftBy(step);
        else
            fill();
    }
    fitMenu();
    reachItemUnderPointer();
}

/// Leaves what stays in view as it is: the item that the user has reached, above all.
void ZEVMenuItemScroller::shiftBy(qsizetype step)
{
    const qsizetype before = m_menu->actions().indexOf(m_anchor) + 1;
    for (qsizetype i = 0; i < step; ++i) {
        m_menu->removeAction(m_menu->actions().at(before));
        m_menu->addAction(m_items.at(m_first + m_capacity - step + i));
    }
    for (qsizetype i = 0; i < -step; ++i) {
        m_menu->removeAction(m_menu->actions().last());
        m_menu->insertAction(m_menu->actions().at(before), m_items.at(m_first - step - 1 - i));
    }
}

void ZEVMenuItemScroller::fill()
{
    const QList<QAction *> shown = m_menu->actions();
    for (QAction *item : shown.sliced(shown.indexOf(m_anchor) + 1))
        m_menu->removeAction(item);
    m_menu->addActions(m_items.sliced(m_first, std::min(m_capacity, m_items.size() - m_first)));
}

/// An open menu keeps its width, so that it does not shiver under the user's eyes, and while there is more to
/// scroll its height.
void ZEVMenuItemScroller::fitMenu()
{
    if (m_menu->isVisible()) {
        QSize size = m_menu->sizeHint();
        size.setWidth(std::max(size.width(), m_menu->width()));
        if (m_first > 0)
            size.setHeight(std::max(size.height(), m_menu->height()));
        m_menu->resize(size);
        m_menu->setMinimumWidth(size.width());
    }
    placeScrollBar();
}

void ZEVMenuItemScroller::placeScrollBar()
{
    if (m_scrollBar->isHidden())
        return;
    const int frame = m_menu->style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, m_menu);
    QRect place = m_menu->rect().adjusted(frame, frame, -frame, -frame);
    place.setTop(m_menu->actionGeometry(m_anchor).bottom() + 1);
    place.setWidth(m_scrollBar->sizeHint().width());
    m_scrollBar->setGeometry(
        QStyle::visualRect(m_menu->layoutDirection(), m_menu->rect(),
                           place.translated(m_menu->width() - 2 * frame - place.width(), 0)));
    m_scrollBar->raise();
}

/// The pointer stands still, and yet another item is under it. Reaching a submenu would open it, though.
void ZEVMenuItemScroller::reachItemUnderPointer()
{
    const QPoint local = m_menu->mapFromGlobal(QCursor::pos());
    if (!m_menu->isVisible() || !m_menu->underMouse() || m_menu->childAt(local))
        return;
    QAction *item = m_menu->actionAt(local);
    if (item && item->isEnabled() && !item->menu<QMenu *>())
        m_menu->setActiveAction(item);
}

bool ZEVMenuItemScroller::turnWheel(QEvent *event)
{
    return isInStep() && lastFirst() > 0 && QApplication::sendEvent(m_scrollBar, event);
}

void ZEVMenuItemScroller::menuChanged(QEvent::Type type)
{
    if (type == QEvent::Hide)
        m_menu->setMinimumWidth(0);
    else if (type == QEvent::Resize || isInStep()) // while its items change the menu has other sizes
        placeScrollBar();
}

/// Whoever has put other items into the menu meanwhile means them, and ours may be gone: they are forgotten.
bool ZEVMenuItemScroller::isInStep()
{
    const QList<QAction *> shown = m_menu->actions();
    const qsizetype before = m_anchor ? shown.indexOf(m_anchor) : -1;
    if (before >= 0 && shown.sliced(before + 1) == m_items.mid(m_first, m_capacity))
        return true;
    m_anchor = nullptr;
    m_items.clear();
    m_first = 0;
    resetScrollBar();
    return false;
}

/// By one item the menu moves itself, once that is in view; at either end it goes on to the items before
/// ours.
bool ZEVMenuItemScroller::moveByKey(int key)
{
    if (!isInStep())
        return false;
    const qsizetype active = m_items.indexOf(m_menu->activeAction());
    const qsizetype last = m_items.size() - 1;
    switch (key) {
    case Qt::Key_Down:
        scrollOnto(active < 0 ? 0 : selectableFrom(active + 1, 1));
        return false;
    case Qt::Key_Up:
        scrollOnto(active < 0 ? last : selectableFrom(active - 1, -1));
        return false;
    case Qt::Key_PageDown:
        return activate(selectableFrom(std::min(std::max<qsizetype>(active, 0) + m_capacity - 1, last), -1));
    case Qt::Key_PageUp:
        return activate(selectableFrom(std::max<qsizetype>(active - m_capacity + 1, 0), 1));
    case Qt::Key_Home:
        return activate(selectableFrom(0, 1));
    case Qt::Key_End:
        return activate(selectableFrom(last, -1));
    default:
        return false;
    }
}

void ZEVMenuItemScroller::scrollOnto(qsizetype index)
{
    if (index < 0)
        return;
    if (index < m_first)
        scrollTo(index);
    else if (index >= m_first + m_capacity)
        scrollTo(index - m_capacity + 1);
}

bool ZEVMenuItemScroller::activate(qsizetype index)
{
    if (index < 0)
        return false;
    scrollOnto(index);
    m_menu->setActiveAction(m_items.at(index));
    m_menu->setFocus(Qt::PopupFocusReason);
    return true;
}

/// -1 where there is none.
qsizetype ZEVMenuItemScroller::selectableFrom(qsizetype index, int direction) const
{
    while (index >= 0 && index < m_items.size() && !isSelectable(m_items.at(index)))
        index += direction;
    return index < m_items.size() ? index : -1;
}
