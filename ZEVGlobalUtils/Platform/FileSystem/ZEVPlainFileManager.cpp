// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManagerDelegate.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

using ZEVFileErrors::Operation;
using ZEVFileURL::path;

/// Runs \a operation on the paths of the URLs, all of which must be files of this machine.
ZEVFileFailure perform(const auto &operation, const QUrl &url, const auto &...others)
{
    const bool areFiles = !path(url).isEmpty() && (!path(others).isEmpty() && ...);
    return areFiles ? operation(path(url), path(others)...) : ZEVFileFailure(EINVAL);
}

bool succeeded(const ZEVFileFailure &failure, ZEVError *error, const QUrl &url)
{
    if (failure && error)
        *error = ZEVFileErrors::error(failure, Operation::Change, url);
    return !failure;
}

ZEVFileOperations::Handling handlingOf(ZEVPlainFileManager &manager)
{
    const auto mayLeaveOut = [&manager](const QByteArray &path) {
        ZEVPlainFileManagerDelegate *delegate = manager.delegate();
        return delegate
            && delegate->shouldProceedWithoutAttributesOfItemAtURL(manager, ZEVFileURL::withPath(path));
    };
    return {manager.progressHandler(), mayLeaveOut};
}

} // namespace

ZEVPlainFileManagerDelegate::~ZEVPlainFileManagerDelegate() = default;

bool ZEVPlainFileManagerDelegate::shouldProceedAfterErrorMovingItemAtURL(ZEVPlainFileManager &,
                                                                         const ZEVError &, const QUrl &,
                                                                         const QUrl &)
{
    return false;
}

bool ZEVPlainFileManagerDelegate::shouldProceedAfterErrorCopyingItemAtURL(ZEVPlainFileManager &,
                                                                          const ZEVError &, const QUrl &,
                                                                          const QUrl &)
{
    return false;
}

bool ZEVPlainFileManagerDelegate::shouldProceedWithoutAttributesOfItemAtURL(ZEVPlainFileManager &,
                                                                            const QUrl &)
{
    return false;
}

ZEVPlainFileManager *ZEVPlainFileManager::defaultManager()
{
    static ZEVPlainFileManager manager;
    return &manager;
}

ZEVPlainFileManager::~ZEVPlainFileManager() = default;

QString ZEVPlainFileManager::temporaryNameFilter() { return u".zev-*.tmp"_s; }

bool ZEVPlainFileManager::copyItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    const ZEVFileFailure problem = perform(
        [this](const QByteArray &source, const QByteArray &destination) {
            return ZEVFileOperations::copyItem(source, destination, handlingOf(*this));
        },
        srcURL, dstURL);
    if (!problem)
        return true;
    const ZEVError failure = ZEVFileErrors::error(problem, Operation::Copy, srcURL, dstURL);
    if (m_delegate && m_delegate->shouldProceedAfterErrorCopyingItemAtURL(*this, failure, srcURL, dstURL))
        return true;
    if (error)
        *error = failure;
    return false;
}

bool ZEVPlainFileManager::moveItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    const ZEVFileFailure problem = perform(
        [this](const QByteArray &source, const QByteArray &destination) {
            return ZEVFileOperations::moveItem(source, destination, handlingOf(*this));
        },
        srcURL, dstURL);
    if (!problem)
        return true;
    const ZEVError failure = ZEVFileErrors::error(problem, Operation::Move, srcURL, dstURL);
    if (m_delegate && m_delegate->shouldProceedAfterErrorMovingItemAtURL(*this, failure, srcURL, dstURL))
        return true;
    if (error)
        *error = failure;
    return false;
}

bool ZEVPlainFileManager::replaceItemAtURL(const QUrl &originalItemURL, const QUrl &newItemURL,
                                           QUrl *resultingItemURL, ZEVError *error)
{
    ZEVFileFailure failure = perform(ZEVFileOperations::replaceItem, originalItemURL, newItemURL);
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it may be what the result is written to
    const QUrl resulting = originalItemURL;
    if (!failure && resultingItemURL)
        *resultingItemURL = resulting;
    return succeeded(failure, error, resulting);
}

bool ZEVPlainFileManager::moveItemReplacingItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error)
{
    ZEVFileFailure failure = perform(
        [this](const QByteArray &source, const QByteArray &destination) {
            return ZEVFileOperations::moveReplacing(source, destination, handlingOf(*this));
        },
        srcURL, dstURL);
    if (failure && error)
        *error = ZEVFileErrors::error(failure, Operation::Move, srcURL, dstURL);
    return !failure;
}

bool ZEVPlainFileManager::removeItemAtURL(const QUrl &url, ZEVError *error)
{
    return succeeded(perform(ZEVFileOperations::removeItem, url), error, url);
}

bool ZEVPlainFileManager::createDirectoryAtURL(const QUrl &url, bool withIntermediateDirectories,
                                               ZEVError *error)
{
    const auto create = [&](const QByteArray &path) {
        return ZEVFileOperations::createDirectory(path, withIntermediateDirectories);
    };
    return succeeded(perform(create, url), error, url);
}

std::optional<QUrl> ZEVPlainFileManager::itemReplacementDirectory(const QUrl &url, ZEVError *error)
{
    QByteArray created;
    const auto create = [&](const QByteArray &path) {
        return ZEVFileOperations::createTemporaryDirectory(path, created);
    };
    if (!succeeded(perform(create, url), error, url))
        return std::nullopt;
    return ZEVFileURL::withPath(created);
}

bool ZEVPlainFileManager::createFileAtURL(const QUrl &url, const QByteArray &contents, ZEVError *error)
{
    const auto create = [&](const QByteArray &path) { return ZEVFileOperations::createFile(path, contents); };
    return succeeded(perform(create, url), error, url);
}

bool ZEVPlainFileManager::setPosixPermissions(unsigned permissions, const QUrl &url, ZEVError *error)
{
    const auto set = [&](const QByteArray &path) {
        return ZEVFileOperations::setPermissions(path, permissions);
    };
    return succeeded(perform(set, url), error, url);
}

bool ZEVPlainFileManager::fileExistsAtURL(const QUrl &url, bool *isDirectory) const
{
    const auto status = ZEVFileOperations::status(path(url));
    if (isDirectory)
        *isDirectory = status && status->isDirectory;
    return status.has_value();
}

std::optional<QStringList> ZEVPlainFileManager::tagNamesOfItemAtURL(const QUrl &url) const
{
    const auto tags = ZEVFileOperations::tags(path(url));
    if (!tags)
        return std::nullopt;
    return tags->split(u',', Qt::SkipEmptyParts);
}

bool ZEVPlainFileManager::setTagNames(const QStringList &names, const QUrl &url)
{
    const auto set = [&](const QByteArray &path) {
        return ZEVFileOperations::setTags(path, names.join(u','));
    };
    return !perform(set, url);
}
