// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVEventHelpers.h>

#include <QKeyEvent>

bool ZEVEventHelpers::isEnterKey(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const QString text = static_cast<const QKeyEvent &>(event).text();
    return text == u"\r" || text == u"\x03";
}
