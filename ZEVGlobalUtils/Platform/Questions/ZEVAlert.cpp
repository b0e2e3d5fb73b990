// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlertDialog_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorRecoveryAttempting.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QApplication>

namespace {

ZEVAlert::Runner &hostRunner()
{
    static ZEVAlert::Runner runner;
    return runner;
}

} // namespace

ZEVAlert ZEVAlert::alertWithError(const ZEVError &error)
{
    ZEVAlert alert;
    alert.messageText = error.localizedDescription();
    alert.buttons =
        error.userInfo().value(ZEVErrorRecoveryAttempting::RecoveryOptionsKey.toString()).toStringList();
    return alert;
}

int ZEVAlert::runModal(QWidget *parent)
{
    if (const Runner runner = hostRunner())
        return runner(*this);
    ZEVAlertDialog dialog(*this, parent ? parent : QApplication::activeWindow());
    const int button = dialog.exec();
    isSuppressed = dialog.isSuppressed();
    return FirstButtonReturn + button;
}

void ZEVAlert::beginSheetModalForWindow(QWidget *window, const std::function<void(int)> &handler)
{
    if (const Runner runner = hostRunner())
        return handler(runner(*this));
    auto *dialog = new ZEVAlertDialog(*this, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::finished, dialog,
                     [handler](int button) { handler(FirstButtonReturn + button); });
    dialog->open();
}

ZEVAlert::Runner ZEVAlert::setRunner(const Runner &runner) { return std::exchange(hostRunner(), runner); }
