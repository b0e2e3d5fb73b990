// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManager.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <cerrno>

using namespace ZEVErrorFileErrorHelpers;

namespace {

/// A plain manager for one retry: its failures go through the same repairs.
class Retrying : public ZEVPlainFileManager {
public:
    explicit Retrying(ZEVFileManager &manager)
    {
        setDelegate(&manager);
        setProgressHandler(manager.progressHandler());
    }
};

bool lieOnTwoVolumes(const ZEVError &error)
{
    return ZEV_isFileWriteUnknownError(error) && ZEVFileErrors::posixCode(error) == EXDEV;
}

} // namespace

unsigned ZEVFileManager::recoveryForItem(const ZEVError &error, const QUrl &srcURL, const QUrl &dstURL) const
{
    FileExistsPolicy policy;
    {
        const QMutexLocker lock(&m_mutex);
        policy = m_policy;
    }
    return policy ? policy(error, srcURL, dstURL) : m_fileExistsRecovery.load();
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
    Retrying retrying(*this);
    const QUrl source = ZEVFileReference::filePathURL(srcURL);
    const bool copies = ZEV_originatesFromCopyOperation(fileExistsError);
    const auto attempt = [&](const QUrl &, const QUrl &candidate, ZEVError *failure) {
        return copies ? retrying.copyItemAtURL(source, candidate, failure)
                      : retrying.moveItemAtURL(source, candidate, failure);
    };
    return ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(dstURL, &dstURL, attempt, error);
}

bool ZEVFileManager::attemptRecoveryFromFileExistsErrorByReplacingItemAtURL(const ZEVError &fileExistsError,
                                                                            QUrl &dstURL, const QUrl &srcURL,
                                                                            ZEVError *error)
{
    const QUrl source = ZEVFileReference::filePathURL(srcURL);
    if (ZEV_originatesFromCopyOperation(fileExistsError)) {
        ZEVPlainFileManager plain; // the shared one, but for the progress
        plain.setProgressHandler(progressHandler());
        return ZEVFileManagerHelpers::atomicCopyItemAtURL(plain, source, dstURL, error);
    }
    ZEVError failure;
    if (replaceItemAtURL(dstURL, source, &dstURL, &failure))
        return true;
    if (error)
        *error = failure;
    return lieOnTwoVolumes(failure) && replaceAcrossVolumes(source, dstURL, error);
}

/// The item is beside its destination before anything is removed, so that neither is lost on the way.
bool ZEVFileManager::replaceAcrossVolumes(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    if (!ZEVFileOperations::mayRemove(ZEVFileURL::path(srcURL))) {
        if (error)
            *error = ZEVFileErrors::error(EACCES, ZEVFileErrors::Operation::Move, srcURL, dstURL);
        return false;
    }
    Retrying retrying(*this);
    return ZEVFileManagerHelpers::atomicCopyItemAtURL(retrying, srcURL, dstURL, error)
        && retrying.removeItemAtURL(srcURL, error);
}
