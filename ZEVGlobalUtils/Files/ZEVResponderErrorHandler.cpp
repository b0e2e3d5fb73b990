// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVResponderErrorHandler.h>

#include <ZEVGlobalUtils/Files/ZEVErrorSolver_p.h>
#include <ZEVGlobalUtils/Files/ZEVProgress.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QWidget>

namespace {

/// Null where the error is about no item.
QIcon iconOfItem(const ZEVError &error)
{
    const QUrl url = ZEVFileErrors::itemURL(error);
    return url.isValid() ? ZEVWorkspace::iconForFile(url) : QIcon();
}

ZEVAlert batchAlert(const ZEVError &error, bool showsSuppressionButton)
{
    ZEVAlert alert = ZEVAlert::alertWithError(error);
    const ZEVProgress *progress = ZEVProgress::currentProgress();
    alert.windowTitle = progress ? progress->localizedDescription() : QString();
    alert.showsSuppressionButton = showsSuppressionButton;
    alert.suppressionTitle = ZEVGlobalHelper::localizedStringForKey(u"Apply to All");
    alert.icon = iconOfItem(error);
    return alert;
}

} // namespace

bool ZEVResponderErrorHandler::presentErrorSolver(QWidget *, const ZEVErrorSolver::Pointer &solver)
{
    return ZEVErrorPresentation::presentError(solver->error());
}

void ZEVResponderErrorHandler::presentErrorSolver(QWidget *, const ZEVErrorSolver::Pointer &solver,
                                                  QWidget *modalForWindow)
{
    const ZEVError error = solver->error();
    const auto didPresent = [solver](bool didRecover, const void *contextInfo) {
        solver->didPresentErrorWithRecovery(didRecover, contextInfo);
    };
    ZEVAlert::alertWithError(error).beginSheetModalForWindow(
        modalForWindow, [solver, error, didPresent](int answer) {
            solver->attemptRecoveryFromError(error, answer - ZEVAlert::FirstButtonReturn, didPresent,
                                             &ZEVErrorSolverContext);
        });
}

bool ZEVResponderErrorHandler::presentErrorSolver(QWidget *responder, const ZEVErrorSolver::Pointer &solver,
                                                  std::optional<qint64> *appliedToAllResponse,
                                                  bool showsSuppressionButton)
{
    const ZEVError error = solver->error();
    if (appliedToAllResponse && *appliedToAllResponse)
        return solver->attemptRecoveryFromError(*error.underlyingError(), **appliedToAllResponse);
    ZEVAlert alert = batchAlert(error, showsSuppressionButton);
    const int option =
        alert.runModal(responder ? responder->window() : nullptr) - ZEVAlert::FirstButtonReturn;
    if (appliedToAllResponse && alert.isSuppressed)
        *appliedToAllResponse = option;
    return solver->attemptRecoveryFromError(error, option);
}
