// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVReducedMotion_p.h>

#include <QStyle>
#include <QWidget>

bool ZEVReducedMotion::isRequested(const QWidget *view)
{
    return view->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, view) <= 0;
}
