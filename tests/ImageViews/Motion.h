// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <QProxyStyle>
#include <QTest>
#include <QWidget>

/// A desktop that asks for no animations, or does not.
class MotionStyle : public QProxyStyle {
public:
    explicit MotionStyle(bool isReduced)
        : QProxyStyle(QStringLiteral("fusion"))
        , m_isReduced(isReduced)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        const bool isAsked = hint == SH_Widget_Animation_Duration;
        return isAsked ? (m_isReduced ? 0 : 200) : QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    bool m_isReduced;
};

inline void setReducedMotion(QWidget *view, bool isReduced)
{
    auto *const style = new MotionStyle(isReduced);
    style->setParent(view);
    view->setStyle(style);
}

/// A compositor without a seat gives no window the keyboard or the mouse, and none the clipboard.
#define NEEDS_A_SEAT                                                                                         \
    if (QGuiApplication::platformName() == u"wayland")                                                       \
    QSKIP("The headless compositor has no seat.")
