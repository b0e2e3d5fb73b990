// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorRecoveryAttempting.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QApplication>
#include <QStyle>

namespace {

ZEVErrorPresentation::Presenter &hostPresenter()
{
    static ZEVErrorPresentation::Presenter presenter;
    return presenter;
}

void showAlert(const ZEVError &error)
{
    ZEVAlert alert = ZEVAlert::alertWithError(error);
    alert.icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
    alert.escapeButton = 0;
    alert.runModal();
}

bool askForRecovery(const ZEVError &error, ZEVErrorRecoveryAttempting &attempter)
{
    const int answer = ZEVAlert::alertWithError(error).runModal();
    return attempter.attemptRecoveryFromError(error, answer - ZEVAlert::FirstButtonReturn);
}

} // namespace

bool ZEVErrorPresentation::presentError(const ZEVError &error)
{
    if (const auto attempter = ZEVErrorRecoveryAttempting::attempterOfError(error))
        return askForRecovery(error, *attempter);
    // A copy, since a presenter may well put another in its own place.
    if (const Presenter presenter = hostPresenter())
        presenter(error);
    else if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        showAlert(error);
    else
        qCWarning(zevLog).noquote() << error.localizedDescription();
    return false;
}

void ZEVErrorPresentation::presentErrorLater(const ZEVError &error)
{
    if (QCoreApplication *const application = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            application, [error] { presentError(error); }, Qt::QueuedConnection);
}

ZEVErrorPresentation::Presenter ZEVErrorPresentation::setPresenter(Presenter presenter)
{
    return std::exchange(hostPresenter(), std::move(presenter));
}
