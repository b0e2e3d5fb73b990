// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorRecoveryAttempting.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QApplication>
#include <QMessageBox>

namespace {

ZEVErrorPresentation::Presenter &hostPresenter()
{
    static ZEVErrorPresentation::Presenter presenter;
    return presenter;
}

void showAlert(const ZEVError &error)
{
    QMessageBox alert(QMessageBox::Critical, QGuiApplication::applicationDisplayName(),
                      error.localizedDescription(), QMessageBox::Ok, QApplication::activeWindow());
    // Expressions and file names stand in these texts: none of them may be taken for rich text.
    alert.setTextFormat(Qt::PlainText);
    alert.exec();
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

ZEVErrorPresentation::Presenter ZEVErrorPresentation::setPresenter(Presenter presenter)
{
    return std::exchange(hostPresenter(), std::move(presenter));
}
