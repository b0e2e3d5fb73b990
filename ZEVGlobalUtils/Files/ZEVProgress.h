// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>

/// What the application is busy with, in words for its user, as long as the object lives. Main thread only.
class ZEV_EXPORT ZEVProgress {
public:
    explicit ZEVProgress(const QString &localizedDescription);
    ~ZEVProgress();
    Q_DISABLE_COPY_MOVE(ZEVProgress)

    const QString &localizedDescription() const { return m_localizedDescription; }

    /// The one that was made last; null when there is none.
    static const ZEVProgress *currentProgress();

private:
    QString m_localizedDescription;
    ZEVProgress *m_outer;
};
