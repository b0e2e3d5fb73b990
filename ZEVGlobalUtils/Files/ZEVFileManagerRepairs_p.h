// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>

#include <QSet>

/// What has been tried in the outermost call of a manager that is under way on this thread.
class ZEVFileManager::Repairs {
public:
    enum Kind { CreateFolder, Unlock, MakeWritable, ProvideAccess };

    /// A call within a call of the same manager goes on with what was tried there.
    explicit Repairs(const ZEVFileManager *manager);
    ~Repairs();
    Q_DISABLE_COPY_MOVE(Repairs)

    /// False for what was tried before.
    static bool begin(const ZEVFileManager *manager, Kind kind, const QUrl &url);

private:
    static Repairs *ofManager(const ZEVFileManager *manager);

    const ZEVFileManager *m_manager;
    Repairs *m_outer;
    bool m_isWithinAnother;
    QSet<std::pair<int, QByteArray>> m_tried;
};
