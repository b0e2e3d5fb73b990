// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVWrappingLayout_p.h>

#include <QStyle>
#include <QWidget>

ZEVWrappingLayout::ZEVWrappingLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

ZEVWrappingLayout::~ZEVWrappingLayout() { qDeleteAll(m_items); }

void ZEVWrappingLayout::prependWidget(QWidget *widget)
{
    addChildWidget(widget);
    m_items.prepend(new QWidgetItem(widget));
    invalidate();
}

void ZEVWrappingLayout::addItem(QLayoutItem *item) { m_items.append(item); }

QLayoutItem *ZEVWrappingLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize ZEVWrappingLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        size = {size.width() + (size.width() > 0 ? spacing() : 0) + hint.width(),
                qMax(size.height(), hint.height())};
    }
    return size;
}

QSize ZEVWrappingLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void ZEVWrappingLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    laidOut(rect, true);
}

/// At least one item, however wide it is.
QList<QLayoutItem *> ZEVWrappingLayout::lineFrom(int first, int width) const
{
    QList<QLayoutItem *> line;
    int used = 0;
    for (int n = first; n < m_items.size(); ++n) {
        const int needed = m_items[n]->isEmpty() ? 0 : m_items[n]->sizeHint().width() + spacing();
        if (!line.isEmpty() && used + needed - spacing() > width)
            break;
        used += needed;
        line.append(m_items[n]);
    }
    return line;
}

void ZEVWrappingLayout::placeLine(const QList<QLayoutItem *> &line, const QRect &place) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    int x = place.x();
    for (QLayoutItem *item : line) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint().boundedTo({place.width(), place.height()});
        const QRect rect(QPoint(x, place.y() + (place.height() - size.height()) / 2), size);
        item->setGeometry(QStyle::visualRect(direction, geometry(), rect));
        x += size.width() + spacing();
    }
}

/// The height that all lines take.
int ZEVWrappingLayout::laidOut(const QRect &rect, bool places) const
{
    int y = rect.y();
    for (int first = 0; first < m_items.size();) {
        const QList<QLayoutItem *> line = lineFrom(first, rect.width());
        int height = 0;
        for (const QLayoutItem *item : line)
            height = item->isEmpty() ? height : qMax(height, item->sizeHint().height());
        if (places)
            placeLine(line, {rect.x(), y, rect.width(), height});
        y += height + spacing();
        first += int(line.size());
    }
    return m_items.isEmpty() ? 0 : y - spacing() - rect.y();
}
