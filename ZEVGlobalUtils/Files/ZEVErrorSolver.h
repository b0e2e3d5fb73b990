// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorRecoveryAttempting.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QStringList>

#include <functional>
#include <vector>

/// An error with ways to recover from it, each a title for the user and a block that does it. It lives as
/// long as any error that it has made. Main thread only.
class ZEV_EXPORT ZEVErrorSolver : public ZEVErrorRecoveryAttempting,
                                  public std::enable_shared_from_this<ZEVErrorSolver> {
    struct Private { };

public:
    using Pointer = std::shared_ptr<ZEVErrorSolver>;
    using RecoveryBlock = std::function<bool()>; ///< whether the problem is solved
    using CompletionHandler = std::function<void(bool didRecover)>;
    using DidRecover = std::function<void(bool didRecover, const void *contextInfo)>;

    static Pointer solverWithError(const ZEVError &error);
    ZEVErrorSolver(const ZEVError &error, Private);
    ~ZEVErrorSolver() override;

    void addRecoveryOptionWithLocalizedTitle(const QString &title, const RecoveryBlock &recoveryBlock);
    void addCancelRecoveryOption(); ///< solves nothing

    QStringList recoveryOptions() const { return m_titles; }

    /// The error as it was and, in its user info, beneath it again, with the solver and its titles.
    ZEVError error();

    /// Told once of the outcome of a presentation, then forgotten.
    void setCompletionHandler(const CompletionHandler &handler) { m_completionHandler = handler; }
    const CompletionHandler &completionHandler() const { return m_completionHandler; }

    /// Runs the option; false also for an index that has none.
    bool attemptRecoveryFromError(const ZEVError &error, qsizetype optionIndex) override;

    /// The same for a presentation that answers later, to \a didRecover.
    void attemptRecoveryFromError(const ZEVError &error, qsizetype optionIndex, const DidRecover &didRecover,
                                  const void *contextInfo);

    /// A presentation has ended; one of another context than the solver's own is none of its business.
    void didPresentErrorWithRecovery(bool didRecover, const void *contextInfo);

private:
    void complete(bool didRecover);

    ZEVError m_inError;
    QStringList m_titles;
    std::vector<RecoveryBlock> m_blocks;
    CompletionHandler m_completionHandler;
};
