// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QByteArrayList>
#include <QSet>

/// One move or copy, from the first attempt through its repairs to what is done about a name that is taken.
/// It knows what it has tried: the same repair of the same item is not made twice, which ends it.
class ZEVFileManager::Run {
public:
    enum class Kind { Copy, Move };

    /// \a failing is the manager whose operation it is: \a manager itself or one that it helps.
    Run(ZEVFileManager &manager, ZEVPlainFileManager &failing, Kind kind, const QUrl &source,
        const QUrl &destination);

    /// What the error of an operation tells of it.
    static Kind kindOf(const ZEVError &error);

    bool perform(ZEVError *error);

    /// Goes on from a first failure that has been met elsewhere.
    bool recover(const ZEVError &failure);

    bool placeBeside(QUrl &destination, ZEVError *error);
    bool replace(QUrl &destination, ZEVError *error);

    /// Each is one repair, and true when it may have helped.
    bool makeMissingFolder(const QUrl &destination);
    bool fixPermission(bool hasSource, const QUrl &destination);

private:
    enum class Repair { CreateFolder, Unlock, MakeWritable, ProvideAccess };
    using Attempt = std::function<bool(const QUrl &destination, ZEVError *error)>;

    bool attempt(const QUrl &destination, ZEVError *error);
    bool attemptAside(const QUrl &destination, ZEVError *error);
    bool attemptReplacing(const QUrl &destination, ZEVError *error);
    bool attemptAndRepair(const Attempt &attempt, const QUrl &destination, ZEVError &failure);
    bool goOn(const Attempt &attempt, const QUrl &destination, ZEVError &failure);
    bool repair(const ZEVError &failure, const QUrl &destination);
    bool resolve(const ZEVError &conflict);

    bool begin(Repair repair, const QUrl &url);
    bool fixSource(bool &isDecided);
    bool fixDestination(const QUrl &destination);
    bool makeWritable(const QUrl &folder);
    bool provideAccess(const QUrl &url);
    void giveTags(const QUrl &folder);
    void removeMadeFolders();

    ZEVFileManager &m_manager;
    ZEVPlainFileManager &m_failing;
    Kind m_kind;
    QUrl m_source;
    QUrl m_destination;
    QSet<std::pair<int, QByteArray>> m_tried;
    QByteArrayList m_madeFolders;
    std::optional<ZEVError> m_unresolved; ///< why the answer to a conflict could not be followed
};
