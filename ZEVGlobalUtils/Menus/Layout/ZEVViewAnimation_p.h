// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEasingCurve>

class QPropertyAnimation;
class QVariant;

/// Animations of widgets, which end at once where the desktop asks for reduced motion.
namespace ZEVViewAnimation {

inline constexpr qreal DefaultSeconds = 0.25;

/// The cubic Bézier curves that CSS calls "ease" and "ease-out".
QEasingCurve defaultCurve();
QEasingCurve easeOutCurve();

/// From where the property is now, whatever the animation was doing.
void animateTo(QPropertyAnimation &animation, const QVariant &end, qreal seconds, const QEasingCurve &curve);

/// From the animation's own start to its own end.
void run(QPropertyAnimation &animation, qreal seconds, const QEasingCurve &curve);

} // namespace ZEVViewAnimation
