// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVErrorSolver.h>

#include <ZEVGlobalUtils/Files/ZEVErrorSolver_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <utility>

ZEVErrorSolver::Pointer ZEVErrorSolver::solverWithError(const ZEVError &error)
{
    return std::make_shared<ZEVErrorSolver>(error, Private());
}

ZEVErrorSolver::ZEVErrorSolver(const ZEVError &error, Private)
    : m_inError(error)
{
}

ZEVErrorSolver::~ZEVErrorSolver() = default;

void ZEVErrorSolver::addRecoveryOptionWithLocalizedTitle(const QString &title,
                                                         const RecoveryBlock &recoveryBlock)
{
    m_titles.append(title);
    m_blocks.push_back(recoveryBlock);
}

void ZEVErrorSolver::addCancelRecoveryOption()
{
    addRecoveryOptionWithLocalizedTitle(ZEVGlobalHelper::localizedStringForKey(u"Cancel"),
                                        [] { return false; });
}

ZEVError ZEVErrorSolver::error()
{
    QVariantMap userInfo = m_inError.userInfo();
    userInfo.insert(ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(m_inError));
    userInfo.insert(RecoveryAttempterKey.toString(),
                    QVariant::fromValue<ZEVErrorRecoveryAttempting::Pointer>(shared_from_this()));
    userInfo.insert(RecoveryOptionsKey.toString(), m_titles);
    return ZEVError(m_inError.domain(), m_inError.code(), userInfo);
}

bool ZEVErrorSolver::attemptRecoveryFromError(const ZEVError &, qsizetype optionIndex)
{
    const bool isOption = optionIndex >= 0 && optionIndex < qsizetype(m_blocks.size());
    // A copy, since the block may add options.
    const RecoveryBlock block = isOption ? m_blocks[size_t(optionIndex)] : nullptr;
    const bool didRecover = block && block();
    complete(didRecover);
    return didRecover;
}

void ZEVErrorSolver::attemptRecoveryFromError(const ZEVError &error, qsizetype optionIndex,
                                              const DidRecover &didRecover, const void *contextInfo)
{
    const bool isSolved = attemptRecoveryFromError(error, optionIndex);
    if (didRecover)
        didRecover(isSolved, contextInfo);
}

void ZEVErrorSolver::didPresentErrorWithRecovery(bool didRecover, const void *contextInfo)
{
    if (contextInfo == &ZEVErrorSolverContext)
        complete(didRecover);
}

/// The handler may set another one for what it does next.
void ZEVErrorSolver::complete(bool didRecover)
{
    if (const CompletionHandler handler = std::exchange(m_completionHandler, nullptr))
        handler(didRecover);
}
