// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManagerRun_p.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerDelegate.h>
#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QScopeGuard>

#include <cerrno>

using namespace ZEVErrorFileErrorHelpers;
using ZEVFileErrors::Operation;

namespace {

/// A plain manager for one attempt: its failures are the run's alone, but what may be left out is for the
/// host to say.
class Quiet : public ZEVPlainFileManager, public ZEVPlainFileManagerDelegate {
public:
    explicit Quiet(ZEVPlainFileManager &manager)
        : m_manager(manager)
    {
        setProgressHandler(manager.progressHandler());
        setDelegate(this);
    }

    using ZEVPlainFileManager::moveItemReplacingItemAtURL;

    bool shouldProceedWithoutAttributesOfItemAtURL(ZEVPlainFileManager &, const QUrl &url) override
    {
        ZEVPlainFileManagerDelegate *delegate = m_manager.delegate();
        return delegate && delegate->shouldProceedWithoutAttributesOfItemAtURL(m_manager, url);
    }

private:
    ZEVPlainFileManager &m_manager;
};

bool lieOnTwoVolumes(const ZEVError &error)
{
    return ZEV_isFileWriteUnknownError(error) && ZEVFileErrors::posixCode(error) == EXDEV;
}

} // namespace

ZEVFileManager::Run::Run(ZEVFileManager &manager, ZEVPlainFileManager &failing, Kind kind, const QUrl &source,
                         const QUrl &destination)
    : m_manager(manager)
    , m_failing(failing)
    , m_kind(kind)
    , m_source(source)
    , m_destination(destination)
{
}

ZEVFileManager::Run::Kind ZEVFileManager::Run::kindOf(const ZEVError &error)
{
    return ZEV_originatesFromCopyOperation(error) ? Kind::Copy : Kind::Move;
}

bool ZEVFileManager::Run::perform(ZEVError *error)
{
    ZEVError first;
    if (attempt(m_destination, &first) || recover(first))
        return true;
    if (error)
        *error = m_unresolved ? ZEVFileErrors::withErrorBeneath(first, *m_unresolved) : first;
    return false;
}

bool ZEVFileManager::Run::recover(const ZEVError &failure)
{
    ZEVError last = failure;
    const Attempt again = [this](auto &&...given) { return attempt(given...); };
    if (goOn(again, m_destination, last) || resolve(last))
        return true;
    removeMadeFolders();
    return false;
}

/// The operation itself, as the manager does it whose operation it is.
bool ZEVFileManager::Run::attempt(const QUrl &destination, ZEVError *error)
{
    const QUrl source = ZEVFileReference::filePathURL(m_source);
    if (&m_failing == &m_manager)
        return m_kind == Kind::Copy
            ? m_manager.ZEVPlainFileManager::copyItemAtURL(source, destination, error)
            : m_manager.ZEVPlainFileManager::moveItemAtURL(source, destination, error);
    // Its failures come back here by themselves: were its delegate asked, each would begin a run of its own.
    ZEVPlainFileManagerDelegate *delegate = m_failing.delegate();
    const auto restoring = qScopeGuard([&] { m_failing.setDelegate(delegate); });
    m_failing.setDelegate(nullptr);
    return m_kind == Kind::Copy ? m_failing.copyItemAtURL(source, destination, error)
                                : m_failing.moveItemAtURL(source, destination, error);
}

bool ZEVFileManager::Run::attemptAside(const QUrl &destination, ZEVError *error)
{
    Quiet quiet(m_manager);
    const QUrl source = ZEVFileReference::filePathURL(m_source);
    return m_kind == Kind::Copy ? quiet.copyItemAtURL(source, destination, error)
                                : quiet.moveItemAtURL(source, destination, error);
}

bool ZEVFileManager::Run::attemptReplacing(const QUrl &destination, ZEVError *error)
{
    Quiet quiet(m_manager);
    const QUrl source = ZEVFileReference::filePathURL(m_source);
    if (m_kind == Kind::Copy)
        return ZEVFileManagerHelpers::atomicCopyItemAtURL(quiet, source, destination, error);
    return quiet.replaceItemAtURL(destination, source, nullptr, error)
        || (lieOnTwoVolumes(*error) && quiet.moveItemReplacingItemAtURL(source, destination, error));
}

bool ZEVFileManager::Run::attemptAndRepair(const Attempt &attempt, const QUrl &destination, ZEVError &failure)
{
    return attempt(destination, &failure) || goOn(attempt, destination, failure);
}

/// As long as there is a repair that has not been tried; \a failure becomes the last one.
bool ZEVFileManager::Run::goOn(const Attempt &attempt, const QUrl &destination, ZEVError &failure)
{
    while (repair(failure, destination)) {
        if (attempt(destination, &failure))
            return true;
    }
    return false;
}

bool ZEVFileManager::Run::repair(const ZEVError &failure, const QUrl &destination)
{
    switch (failure.code()) { // kept: whatever the domain is
    case ZEVFileErrors::FileWriteNoPermission:
        return fixPermission(m_kind == Kind::Move, destination);
    case ZEVFileErrors::NoSuchFile:
        return makeMissingFolder(destination);
    default:
        return false;
    }
}

/// Nothing but a manager that resolves conflicts has one to resolve.
bool ZEVFileManager::Run::resolve(const ZEVError &conflict)
{
    if (conflict.code() != ZEVFileErrors::FileWriteFileExists || !m_failing.resolvesConflicts())
        return false;
    const unsigned recovery = m_manager.recoveryForItem(conflict, m_source, m_destination);
    const bool isPlacedBeside = recovery == ZEVFileExistsRecoveryKeepBoth;
    if (!isPlacedBeside && recovery != ZEVFileExistsRecoveryReplace)
        return false;
    ZEVError failure;
    QUrl destination = m_destination;
    const bool isDone = isPlacedBeside ? placeBeside(destination, &failure) : replace(destination, &failure);
    if (!isDone)
        m_unresolved = failure;
    return isDone;
}

bool ZEVFileManager::Run::placeBeside(QUrl &destination, ZEVError *error)
{
    const Attempt aside = [this](auto &&...given) { return attemptAside(given...); };
    const auto operation = [&](const QUrl &, const QUrl &candidate, ZEVError *failure) {
        return attemptAndRepair(aside, candidate, *failure);
    };
    return ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(destination, &destination, operation,
                                                                      error);
}

bool ZEVFileManager::Run::replace(QUrl &destination, ZEVError *error)
{
    const Attempt replacing = [this](auto &&...given) { return attemptReplacing(given...); };
    ZEVError failure;
    if (attemptAndRepair(replacing, destination, failure))
        return true;
    if (error)
        *error = failure;
    return false;
}

bool ZEVFileManager::Run::begin(Repair repair, const QUrl &url)
{
    const std::pair<int, QByteArray> tried(int(repair), ZEVFileURL::path(url));
    const bool isNew = !m_tried.contains(tried);
    m_tried.insert(tried);
    return isNew;
}

/// Kept: also where the folder could not be made, for any other reason than a missing right, the operation is
/// tried again, and fails for want of the folder.
bool ZEVFileManager::Run::makeMissingFolder(const QUrl &destination)
{
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(destination);
    if (!m_manager.createMissingDirectories() || !begin(Repair::CreateFolder, folder))
        return false;
    const ZEVFileFailure failure =
        ZEVFileOperations::createDirectory(ZEVFileURL::path(folder), true, &m_madeFolders);
    if (m_manager.copyFinderTagsToNewDirectories())
        giveTags(folder);
    const bool isForbidden =
        failure && ZEV_isPermissionError(ZEVFileErrors::error(failure, Operation::Change, folder));
    return !isForbidden || fixPermission(false, folder);
}

void ZEVFileManager::Run::giveTags(const QUrl &folder)
{
    const QUrl source = ZEVFileReference::filePathURL(m_source);
    const auto tags = m_manager.tagNamesOfItemAtURL(ZEVFileURL::byDeletingLastPathComponent(source));
    if (tags)
        m_manager.setTagNames(*tags, folder);
}

/// Those that are empty, the innermost first.
void ZEVFileManager::Run::removeMadeFolders()
{
    while (!m_madeFolders.isEmpty())
        ZEVFileOperations::removeEmptyDirectory(m_madeFolders.takeLast());
}

bool ZEVFileManager::Run::fixPermission(bool hasSource, const QUrl &destination)
{
    bool isDecided = false;
    const bool isFixed = hasSource && fixSource(isDecided);
    return isDecided ? isFixed : fixDestination(destination);
}

/// A link has no lock: that of what it leads to is none of its own.
bool ZEVFileManager::Run::fixSource(bool &isDecided)
{
    const QUrl source = ZEVFileReference::filePathURL(m_source);
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(source);
    isDecided = true;
    if (!ZEVFileOperations::isLink(ZEVFileURL::path(source)) && ZEVURLFileAccess::isLocked(source))
        return m_manager.unlockFiles() && begin(Repair::Unlock, source)
            && ZEVURLFileAccess::setLocked(source, false);
    if (!ZEVURLFileAccess::isAccessibleForReading(folder))
        return provideAccess(folder);
    if (!ZEVURLFileAccess::isAccessibleForWriting(folder))
        return m_manager.fixPermissions() && makeWritable(folder);
    isDecided = false;
    return false;
}

/// Kept: what is looked at is the destination, what is repaired is its folder.
bool ZEVFileManager::Run::fixDestination(const QUrl &destination)
{
    if (!ZEVURLFileAccess::isAccessibleForReading(destination))
        return provideAccess(destination);
    return !ZEVURLFileAccess::isAccessibleForWriting(destination) && m_manager.fixPermissions()
        && makeWritable(ZEVFileURL::byDeletingLastPathComponent(destination));
}

bool ZEVFileManager::Run::makeWritable(const QUrl &folder)
{
    return begin(Repair::MakeWritable, folder) && m_manager.fixPermissionsOfItemAtURL(folder);
}

bool ZEVFileManager::Run::provideAccess(const QUrl &url)
{
    if (!begin(Repair::ProvideAccess, url))
        return false;
    const auto delegate = m_manager.sandboxDelegate();
    return delegate ? delegate->provideSandboxAccessToURL(m_manager, url)
                    : ZEVURLFileAccess::requestSandboxExtention(url);
}
