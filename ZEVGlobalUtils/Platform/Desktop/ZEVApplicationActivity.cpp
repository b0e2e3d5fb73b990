// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>

#include <QGuiApplication>
#include <QPointer>

ZEVApplicationActivity *ZEVApplicationActivity::shared()
{
    static QPointer<ZEVApplicationActivity> activity;
    if (!activity)
        activity = new ZEVApplicationActivity(qApp);
    return activity;
}

ZEVApplicationActivity::ZEVApplicationActivity(QObject *application)
    : QObject(application)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            Q_EMIT didBecomeActive();
        else
            Q_EMIT willResignActive();
    });
}
