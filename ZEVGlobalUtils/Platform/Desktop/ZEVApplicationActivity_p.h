// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Says when the application comes to the front and when it leaves it.
class ZEVApplicationActivity : public QObject {
    Q_OBJECT

public:
    /// Made at the first call, which needs an application; goes with it.
    static ZEVApplicationActivity *shared();

Q_SIGNALS:
    /// May be emitted by others too, to make all read again what other programs may have changed.
    void didBecomeActive();
    void willResignActive();

private:
    explicit ZEVApplicationActivity(QObject *application);
};
