// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVLayoutConstraint.h>

#include <QList>

/// Widgets that fill or keep to the middle of the widget around them. Paddings in points.
namespace ZEVViewEasyConstraints {

/// The add functions make \a view the parent of \a subview, and give it a ZEVConstraintLayout where it has
/// none. Another layout is a programming error, std::logic_error.
ZEV_EXPORT void addFittingSubview(QWidget *view, QWidget *subview, qreal padding = 0);
/// In the middle at its own size, at least \a padding away from the edges.
ZEV_EXPORT void addCenteredSubview(QWidget *view, QWidget *subview, qreal padding);

/// Constraints against the widget's parent; none for a widget without one.
ZEV_EXPORT QList<ZEVLayoutConstraint> superviewFittingConstraints(const QWidget *view);
ZEV_EXPORT QList<ZEVLayoutConstraint> superviewFittingConstraintsWithPadding(const QWidget *view,
                                                                             qreal padding);
/// Kept: the capital V, unlike the others.
ZEV_EXPORT QList<ZEVLayoutConstraint> superViewContainedConstraintsWithPadding(const QWidget *view,
                                                                               qreal padding);
ZEV_EXPORT QList<ZEVLayoutConstraint> centeringConstraintsInContainer(const QWidget *view,
                                                                      const QWidget *container);

} // namespace ZEVViewEasyConstraints
