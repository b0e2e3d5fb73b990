// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerDelegate.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerRepairs_p.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

using namespace ZEVErrorFileErrorHelpers;

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

bool ZEVFileManager::copyItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    const Repairs repairs(this);
    ZEVError failure;
    if (ZEVPlainFileManager::copyItemAtURL(ZEVFileReference::filePathURL(srcURL), dstURL, &failure))
        return true;
    if (attemptRecoveryFromError(*this, failure, srcURL, dstURL))
        return true;
    if (error)
        *error = failure;
    return false;
}

bool ZEVFileManager::moveItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    const Repairs repairs(this);
    ZEVError failure;
    if (ZEVPlainFileManager::moveItemAtURL(ZEVFileReference::filePathURL(srcURL), dstURL, &failure))
        return true;
    if (attemptRecoveryFromError(*this, failure, srcURL, dstURL))
        return true;
    if (error)
        *error = failure;
    return false;
}

bool ZEVFileManager::attemptRecoveryFromError(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                              const QUrl &srcURL, const QUrl &dstURL)
{
    const Repairs repairs(this);
    bool isRepaired = false;
    switch (error.code()) { // kept: whatever the domain is
    case ZEVFileErrors::FileWriteFileExists: {
        QUrl destination = dstURL;
        return dynamic_cast<ZEVFileManager *>(&fileManager)
            && attemptFixingFileExistsError(error, recoveryForItem(error, srcURL, dstURL), srcURL,
                                            destination);
    }
    case ZEVFileErrors::FileWriteNoPermission:
        isRepaired = attemptFixingPermissionError(fileManager, error, srcURL, dstURL);
        break;
    case ZEVFileErrors::NoSuchFile:
        isRepaired = attemptFixingNoSuchFileAtURL(fileManager, dstURL, srcURL);
        break;
    default:
        break;
    }
    if (!isRepaired)
        return false;
    const QUrl source = ZEVFileReference::filePathURL(srcURL);
    return ZEV_originatesFromCopyOperation(error) ? fileManager.copyItemAtURL(source, dstURL)
                                                  : fileManager.moveItemAtURL(source, dstURL);
}

/// Kept: also where the folder could not be made, for any other reason than a missing right, the operation is
/// tried again, and fails for want of the folder.
bool ZEVFileManager::attemptFixingNoSuchFileAtURL(ZEVPlainFileManager &fileManager, const QUrl &dstURL,
                                                  const QUrl &srcURL)
{
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(dstURL);
    if (!m_createMissingDirectories || !Repairs::begin(this, Repairs::CreateFolder, folder))
        return false;
    ZEVError error;
    const bool isCreated = createDirectoryAtURL(folder, true, &error);
    if (m_copyFinderTagsToNewDirectories)
        giveTags(folder, ZEVFileURL::byDeletingLastPathComponent(ZEVFileReference::filePathURL(srcURL)));
    if (isCreated || !ZEV_isPermissionError(error))
        return true;
    return attemptFixingPermissionError(fileManager, error, {}, folder);
}

void ZEVFileManager::giveTags(const QUrl &folder, const QUrl &sourceFolder)
{
    if (const auto tags = tagNamesOfItemAtURL(sourceFolder))
        setTagNames(*tags, folder);
}

bool ZEVFileManager::attemptFixingPermissionError(ZEVPlainFileManager &, const ZEVError &error,
                                                  const QUrl &srcURL, const QUrl &dstURL)
{
    if (srcURL.isValid() && ZEV_originatesFromMoveOperation(error)) {
        bool isDecided = false;
        const bool isFixed = fixSource(ZEVFileReference::filePathURL(srcURL), isDecided);
        if (isDecided)
            return isFixed;
    }
    return fixDestination(dstURL);
}

bool ZEVFileManager::fixSource(const QUrl &srcURL, bool &isDecided)
{
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(srcURL);
    isDecided = true;
    if (ZEVURLFileAccess::isLocked(srcURL))
        return m_unlockFiles && Repairs::begin(this, Repairs::Unlock, srcURL)
            && ZEVURLFileAccess::setLocked(srcURL, false);
    if (!ZEVURLFileAccess::isAccessibleForReading(folder))
        return provideAccess(folder);
    if (!ZEVURLFileAccess::isAccessibleForWriting(folder))
        return m_fixPermissions && fixPermissionsOfItemAtURL(folder);
    isDecided = false;
    return false;
}

/// Kept: what is looked at is the destination, what is repaired is its folder.
bool ZEVFileManager::fixDestination(const QUrl &dstURL)
{
    if (!ZEVURLFileAccess::isAccessibleForReading(dstURL))
        return provideAccess(dstURL);
    return !ZEVURLFileAccess::isAccessibleForWriting(dstURL) && m_fixPermissions
        && fixPermissionsOfItemAtURL(ZEVFileURL::byDeletingLastPathComponent(dstURL));
}

bool ZEVFileManager::provideAccess(const QUrl &url)
{
    if (!Repairs::begin(this, Repairs::ProvideAccess, url))
        return false;
    const auto delegate = sandboxDelegate();
    return delegate ? delegate->provideSandboxAccessToURL(*this, url)
                    : ZEVURLFileAccess::requestSandboxExtention(url);
}

bool ZEVFileManager::fixPermissionsOfItemAtURL(const QUrl &url, ZEVError *error)
{
    return Repairs::begin(this, Repairs::MakeWritable, url) && setPosixPermissions(0755, url, error);
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
