// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerDelegate.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerRun_p.h>

ZEVFileManagerDelegate::~ZEVFileManagerDelegate() = default;

ZEVFileManager *ZEVFileManager::defaultManager()
{
    static ZEVFileManager manager;
    return &manager;
}

ZEVFileManager::ZEVFileManager() = default;
ZEVFileManager::~ZEVFileManager() = default;

std::shared_ptr<ZEVFileManagerDelegate> ZEVFileManager::sandboxDelegate() const
{
    const QMutexLocker lock(&m_mutex);
    return m_sandboxDelegate;
}

void ZEVFileManager::setSandboxDelegate(const std::shared_ptr<ZEVFileManagerDelegate> &delegate)
{
    const QMutexLocker lock(&m_mutex);
    m_sandboxDelegate = delegate;
}

void ZEVFileManager::setFileExistsPolicy(const FileExistsPolicy &policy)
{
    const QMutexLocker lock(&m_mutex);
    m_policy = policy;
}

unsigned ZEVFileManager::recoveryForItem(const ZEVError &error, const QUrl &srcURL, const QUrl &dstURL) const
{
    FileExistsPolicy policy;
    {
        const QMutexLocker lock(&m_mutex);
        policy = m_policy;
    }
    return policy ? policy(error, srcURL, dstURL) : m_fileExistsRecovery.load();
}

bool ZEVFileManager::copyItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    return Run(*this, *this, Run::Kind::Copy, srcURL, dstURL).perform(error);
}

bool ZEVFileManager::moveItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    return Run(*this, *this, Run::Kind::Move, srcURL, dstURL).perform(error);
}

bool ZEVFileManager::attemptRecoveryFromError(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                              const QUrl &srcURL, const QUrl &dstURL)
{
    return Run(*this, fileManager, Run::kindOf(error), srcURL, dstURL).recover(error);
}

bool ZEVFileManager::attemptFixingNoSuchFileAtURL(ZEVPlainFileManager &fileManager, const QUrl &dstURL,
                                                  const QUrl &srcURL)
{
    return Run(*this, fileManager, Run::Kind::Move, srcURL, dstURL).makeMissingFolder(dstURL);
}

bool ZEVFileManager::attemptFixingPermissionError(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                                  const QUrl &srcURL, const QUrl &dstURL)
{
    const bool hasSource =
        srcURL.isValid() && ZEVErrorFileErrorHelpers::ZEV_originatesFromMoveOperation(error);
    return Run(*this, fileManager, Run::Kind::Move, srcURL, dstURL).fixPermission(hasSource, dstURL);
}

bool ZEVFileManager::fixPermissionsOfItemAtURL(const QUrl &url, ZEVError *error)
{
    return setPosixPermissions(0755, url, error);
}

bool ZEVFileManager::attemptFixingFileExistsError(const ZEVError &error, unsigned recovery,
                                                  const QUrl &srcURL, QUrl &dstURL)
{
    switch (recovery) {
    case ZEVFileExistsRecoveryKeepBoth:
        return attemptRecoveryFromFileExistsErrorByFindingUniqueNameAtURL(error, dstURL, srcURL);
    case ZEVFileExistsRecoveryReplace:
        return attemptRecoveryFromFileExistsErrorByReplacingItemAtURL(error, dstURL, srcURL);
    default:
        return false;
    }
}

bool ZEVFileManager::attemptRecoveryFromFileExistsErrorByFindingUniqueNameAtURL(
    const ZEVError &fileExistsError, QUrl &dstURL, const QUrl &srcURL, ZEVError *error)
{
    return Run(*this, *this, Run::kindOf(fileExistsError), srcURL, dstURL).placeBeside(dstURL, error);
}

bool ZEVFileManager::attemptRecoveryFromFileExistsErrorByReplacingItemAtURL(const ZEVError &fileExistsError,
                                                                            QUrl &dstURL, const QUrl &srcURL,
                                                                            ZEVError *error)
{
    return Run(*this, *this, Run::kindOf(fileExistsError), srcURL, dstURL).replace(dstURL, error);
}

bool ZEVFileManager::shouldProceedAfterErrorMovingItemAtURL(ZEVPlainFileManager &fileManager,
                                                            const ZEVError &error, const QUrl &srcURL,
                                                            const QUrl &dstURL)
{
    return attemptRecoveryFromError(fileManager, error, srcURL, dstURL);
}

bool ZEVFileManager::shouldProceedAfterErrorCopyingItemAtURL(ZEVPlainFileManager &fileManager,
                                                             const ZEVError &error, const QUrl &srcURL,
                                                             const QUrl &dstURL)
{
    return attemptRecoveryFromError(fileManager, error, srcURL, dstURL);
}
