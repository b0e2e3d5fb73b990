// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVConstraintLayout.h>

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace {

using Constraint = ZEVLayoutConstraint;

constexpr qreal Infinity = std::numeric_limits<qreal>::infinity();

struct Bounds {
    qreal least = -Infinity;
    qreal most = Infinity;

    bool isFixed() const { return least == most; }

    void narrow(Constraint::Relation relation, qreal value)
    {
        if (relation != Constraint::LessThanOrEqual)
            least = qMax(least, value);
        if (relation != Constraint::GreaterThanOrEqual)
            most = qMin(most, value);
    }
};

/// Where a widget may lie along one axis, as positions from the near edge of the container.
struct AxisBounds {
    Bounds start, end, center;
};

struct Span {
    qreal start = 0;
    qreal length = 0;
};

bool isHorizontal(Constraint::Attribute attribute) { return attribute <= Constraint::CenterX; }

qreal containerPosition(Constraint::Attribute attribute, qreal length)
{
    switch (attribute) {
    case Constraint::Trailing:
    case Constraint::Bottom:
        return length;
    case Constraint::CenterX:
    case Constraint::CenterY:
        return length / 2;
    default:
        return 0;
    }
}

Bounds &boundsOf(AxisBounds &axis, Constraint::Attribute attribute)
{
    switch (attribute) {
    case Constraint::Trailing:
    case Constraint::Bottom:
        return axis.end;
    case Constraint::CenterX:
    case Constraint::CenterY:
        return axis.center;
    default:
        return axis.start;
    }
}

/// The widget may stand on either side of the relation.
void apply(const Constraint &rule, const QWidget *view, qreal length, AxisBounds &axis)
{
    if (rule.firstItem == view) {
        const qreal other = containerPosition(rule.secondAttribute, length);
        boundsOf(axis, rule.firstAttribute).narrow(rule.relation, other * rule.multiplier + rule.constant);
    } else if (rule.multiplier > 0) {
        const qreal other = containerPosition(rule.firstAttribute, length);
        const auto turned = static_cast<Constraint::Relation>(-rule.relation);
        boundsOf(axis, rule.secondAttribute).narrow(turned, (other - rule.constant) / rule.multiplier);
    }
}

AxisBounds axisBounds(const QList<Constraint> &constraints, const QWidget *view, const QWidget *container,
                      Qt::Orientation orientation, qreal length)
{
    AxisBounds axis;
    for (const Constraint &rule : constraints) {
        const bool concerns = (rule.firstItem == view && rule.secondItem == container)
            || (rule.firstItem == container && rule.secondItem == view);
        if (concerns && isHorizontal(rule.firstAttribute) == (orientation == Qt::Horizontal))
            apply(rule, view, length, axis);
    }
    return axis;
}

Span placed(const AxisBounds &axis, qreal hint, qreal minimum)
{
    if (axis.start.isFixed() && axis.end.isFixed())
        return {axis.start.least, qMax(axis.end.most - axis.start.least, 0.0)};
    if (axis.center.isFixed()) {
        const qreal center = axis.center.least;
        const qreal room = 2 * qMin(center - axis.start.least, axis.end.most - center);
        const qreal length = qMax(qMin(hint, room), minimum);
        return {center - length / 2, length};
    }
    const qreal length = qMax(qMin(hint, axis.end.most - axis.start.least), minimum);
    if (axis.start.least > -Infinity && !axis.end.isFixed())
        return {axis.start.least, length};
    return {axis.end.most < Infinity ? axis.end.most - length : 0, length};
}

/// What the constraints keep free beside a widget, however large the container is.
int padding(const AxisBounds &axisOfNothing)
{
    const qreal before = qMax(axisOfNothing.start.least, 0.0);
    const qreal behind = qMax(-axisOfNothing.end.most, 0.0);
    return qCeil(axisOfNothing.center.isFixed() ? 2 * qMax(before, behind) : before + behind);
}

} // namespace

ZEVConstraintLayout::ZEVConstraintLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

ZEVConstraintLayout::~ZEVConstraintLayout() = default;

void ZEVConstraintLayout::addConstraints(const QList<ZEVLayoutConstraint> &constraints)
{
    m_constraints += constraints;
    invalidate();
}

void ZEVConstraintLayout::addItem(QLayoutItem *item) { m_items.emplace_back(item); }

QLayoutItem *ZEVConstraintLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)].get() : nullptr;
}

QLayoutItem *ZEVConstraintLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem *item = place->release();
    m_items.erase(place);
    const QWidget *view = item->widget();
    m_constraints.removeIf(
        [view](const auto &rule) { return rule.firstItem == view || rule.secondItem == view; });
    return item;
}

QRect ZEVConstraintLayout::frame(const QLayoutItem &item, const QWidget *view, const QRect &rect) const
{
    const QSize hint = item.sizeHint(), minimum = item.minimumSize();
    const auto axis = [&](Qt::Orientation orientation, int length) {
        return axisBounds(m_constraints, view, parentWidget(), orientation, length);
    };
    const Span x = placed(axis(Qt::Horizontal, rect.width()), hint.width(), minimum.width());
    const Span y = placed(axis(Qt::Vertical, rect.height()), hint.height(), minimum.height());
    const QRectF fromLeading(rect.x() + x.start, rect.y() + y.start, x.length, y.length);
    return QStyle::visualRect(parentWidget()->layoutDirection(), rect, fromLeading.toRect());
}

/// Places the widgets themselves, for a layout item goes by the size policy, which constraints outweigh.
void ZEVConstraintLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    for (const auto &item : m_items) {
        if (QWidget *view = item->widget())
            view->setGeometry(frame(*item, view, rect));
    }
}

QSize ZEVConstraintLayout::padded(const QLayoutItem &item, QSize size) const
{
    const auto around = [&](Qt::Orientation orientation) {
        return padding(axisBounds(m_constraints, const_cast<QLayoutItem &>(item).widget(), parentWidget(),
                                  orientation, 0));
    };
    return size + QSize(around(Qt::Horizontal), around(Qt::Vertical));
}

QSize ZEVConstraintLayout::sizeHint() const
{
    QSize hint(0, 0);
    for (const auto &item : m_items) {
        if (!item->isEmpty())
            hint = hint.expandedTo(padded(*item, item->sizeHint()));
    }
    return hint;
}

QSize ZEVConstraintLayout::minimumSize() const
{
    QSize minimum(0, 0);
    for (const auto &item : m_items) {
        if (!item->isEmpty())
            minimum = minimum.expandedTo(padded(*item, item->minimumSize()));
    }
    return minimum;
}
