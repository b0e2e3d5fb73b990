// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVViewAnimation_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVReducedMotion_p.h>

#include <QPropertyAnimation>
#include <QWidget>

namespace {

QEasingCurve bezier(QPointF first, QPointF second)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(first, second, {1, 1});
    return curve;
}

int milliseconds(const QPropertyAnimation &animation, qreal seconds)
{
    const auto *const view = qobject_cast<const QWidget *>(animation.targetObject());
    return view && ZEVReducedMotion::isRequested(view) ? 0 : qRound(seconds * 1000);
}

} // namespace

QEasingCurve ZEVViewAnimation::defaultCurve() { return bezier({0.25, 0.1}, {0.25, 1}); }
QEasingCurve ZEVViewAnimation::easeOutCurve() { return bezier({0, 0}, {0.58, 1}); }

void ZEVViewAnimation::animateTo(QPropertyAnimation &animation, const QVariant &end, qreal seconds,
                                 const QEasingCurve &curve)
{
    animation.stop();
    // An invalid start value stands for the present one at every second time only (Qt 6.4).
    animation.setStartValue(animation.targetObject()->property(animation.propertyName().constData()));
    animation.setEndValue(end);
    run(animation, seconds, curve);
}

void ZEVViewAnimation::run(QPropertyAnimation &animation, qreal seconds, const QEasingCurve &curve)
{
    animation.stop();
    animation.setDuration(milliseconds(animation, seconds));
    animation.setEasingCurve(curve);
    animation.start();
}
