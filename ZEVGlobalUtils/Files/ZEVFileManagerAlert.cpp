// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>

#include <ZEVGlobalUtils/Files/ZEVConflictDetails_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVMainThread_p.h>

using namespace Qt::StringLiterals;

namespace {

using ZEVFileErrors::itemURL;

QStringList buttons()
{
    return {ZEVGlobalHelper::localizedStringForKey(u"Keep Both"),
            ZEVGlobalHelper::localizedStringForKey(u"Replace"),
            ZEVGlobalHelper::localizedStringForKey(u"Skip"), ZEVGlobalHelper::localizedStringForKey(u"Stop")};
}

ZEVFileExistsRecovery recoveryForButton(int button)
{
    switch (button - ZEVAlert::FirstButtonReturn) {
    case 0:
        return ZEVFileExistsRecoveryKeepBoth;
    case 1:
        return ZEVFileExistsRecoveryReplace;
    case 2:
        return ZEVFileExistsRecoverySkip;
    default:
        return ZEVFileExistsRecoveryNone;
    }
}

ZEVAlert conflictAlert(const ZEVError &error)
{
    ZEVAlert alert = ZEVAlert::alertWithError(error);
    alert.icon = ZEVWorkspace::iconForFile(itemURL(error));
    alert.messageText =
        ZEVGlobalHelper::localizedStringForKey(u"An item named “%@” already exists in this location.")
            .replace(u"%@"_s, ZEVFileURL::displayName(itemURL(error)));
    // Kept: copies are asked about in the same words.
    alert.informativeText =
        ZEVGlobalHelper::localizedStringForKey(u"Do you want to replace it with the one you’re moving?");
    alert.buttons = buttons();
    alert.destructiveButton = 1;
    alert.escapeButton = 2;
    alert.suppressionTitle = ZEVGlobalHelper::localizedStringForKey(u"Apply to All");
    return alert;
}

/// Threads wait here for their turn; the main thread, which answers them, never does.
QMutex &turn()
{
    static QMutex mutex;
    return mutex;
}

} // namespace

void ZEVFileManager::setShowsConflictDetails(bool shows, const ConflictDescriber &describer)
{
    m_showsConflictDetails = shows;
    m_describer = describer;
}

ZEVFileExistsRecovery ZEVFileManager::userRequestedRecoveryForFileExistsError(const ZEVError &error,
                                                                              bool showSuppression)
{
    if (ZEVMainThread::isMainThread())
        return ask(error, showSuppression);
    const QMutexLocker lock(&turn());
    if (const unsigned answer = m_appliedToAllRecovery) // meanwhile
        return ZEVFileExistsRecovery(answer);
    ZEVFileExistsRecovery answer = ZEVFileExistsRecoveryNone;
    ZEVMainThread::callAndWait([&] { answer = ask(error, showSuppression); });
    return answer;
}

ZEVFileExistsRecovery ZEVFileManager::ask(const ZEVError &error, bool showSuppression)
{
    if (const unsigned answer = m_appliedToAllRecovery)
        return ZEVFileExistsRecovery(answer);
    bool isSuppressed = false;
    const ZEVFileExistsRecovery answer =
        runModalRecoveryAlertForFileExistsError(error, showSuppression ? &isSuppressed : nullptr);
    if (isSuppressed)
        m_appliedToAllRecovery = answer;
    return answer;
}

ZEVFileExistsRecovery ZEVFileManager::runModalRecoveryAlertForFileExistsError(const ZEVError &error,
                                                                              bool *isSuppressed)
{
    ZEVAlert alert = conflictAlert(error);
    alert.showsSuppressionButton = isSuppressed != nullptr;
    const QUrl incoming = error.userInfo().value(ZEVFileErrors::SourceURLKey.toString()).toUrl();
    if (m_showsConflictDetails && incoming.isValid())
        alert.items = ZEVConflictDetails::items(itemURL(error), incoming, m_describer);
    const int button = alert.runModal();
    if (isSuppressed)
        *isSuppressed = alert.isSuppressed;
    return recoveryForButton(button);
}
