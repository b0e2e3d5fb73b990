// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>

#include <ZEVGlobalUtils/Menus/Layout/ZEVConstraintLayout.h>

#include <QWidget>

#include <stdexcept>

namespace {

using Constraint = ZEVLayoutConstraint;

ZEVConstraintLayout *constraintLayout(QWidget *view)
{
    if (!view->layout())
        return new ZEVConstraintLayout(view);
    if (auto *layout = dynamic_cast<ZEVConstraintLayout *>(view->layout()))
        return layout;
    throw std::logic_error("a widget with a layout of another kind takes no constraints");
}

/// The same distance, or more, from all four edges of the parent.
QList<Constraint> paddedConstraints(const QWidget *view, Constraint::Relation relation, qreal padding)
{
    const QWidget *parent = view->parentWidget();
    if (!parent)
        return {};
    return {
        {view, Constraint::Leading, relation, parent, Constraint::Leading, 1, padding},
        {parent, Constraint::Trailing, relation, view, Constraint::Trailing, 1, padding},
        {view, Constraint::Top, relation, parent, Constraint::Top, 1, padding},
        {parent, Constraint::Bottom, relation, view, Constraint::Bottom, 1, padding},
    };
}

} // namespace

void ZEVViewEasyConstraints::addFittingSubview(QWidget *view, QWidget *subview, qreal padding)
{
    ZEVConstraintLayout *layout = constraintLayout(view);
    layout->addWidget(subview);
    layout->addConstraints(superviewFittingConstraintsWithPadding(subview, padding));
}

void ZEVViewEasyConstraints::addCenteredSubview(QWidget *view, QWidget *subview, qreal padding)
{
    ZEVConstraintLayout *layout = constraintLayout(view);
    layout->addWidget(subview);
    layout->addConstraints(superViewContainedConstraintsWithPadding(subview, padding));
    layout->addConstraints(centeringConstraintsInContainer(subview, view));
}

QList<Constraint> ZEVViewEasyConstraints::superviewFittingConstraints(const QWidget *view)
{
    return superviewFittingConstraintsWithPadding(view, 0);
}

QList<Constraint> ZEVViewEasyConstraints::superviewFittingConstraintsWithPadding(const QWidget *view,
                                                                                 qreal padding)
{
    return paddedConstraints(view, Constraint::Equal, padding);
}

QList<Constraint> ZEVViewEasyConstraints::superViewContainedConstraintsWithPadding(const QWidget *view,
                                                                                   qreal padding)
{
    return paddedConstraints(view, Constraint::GreaterThanOrEqual, padding);
}

QList<Constraint> ZEVViewEasyConstraints::centeringConstraintsInContainer(const QWidget *view,
                                                                          const QWidget *container)
{
    return {
        {view, Constraint::CenterX, Constraint::Equal, container, Constraint::CenterX},
        {view, Constraint::CenterY, Constraint::Equal, container, Constraint::CenterY},
    };
}
