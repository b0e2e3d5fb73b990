// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Files/ZEVFileExistsRecovery.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManagerDelegate.h>

#include <QMutex>

#include <atomic>
#include <memory>

class ZEVFileManagerDelegate;

/// A file manager that repairs what makes copying or moving fail, and tries again: missing folders, missing
/// rights, names that are taken. A repair may uncover another failure, which is repaired, too, but the same
/// repair of the same item is tried once in a call. Properties may be set and read on any thread.
class ZEV_EXPORT ZEVFileManager : public ZEVPlainFileManager, public ZEVPlainFileManagerDelegate {
public:
    static ZEVFileManager *defaultManager();

    ZEVFileManager();
    ~ZEVFileManager() override;

    /// Asked for access to folders that the process may not read; kept alive.
    std::shared_ptr<ZEVFileManagerDelegate> sandboxDelegate() const;
    void setSandboxDelegate(const std::shared_ptr<ZEVFileManagerDelegate> &delegate);

    /// Makes the destination's folder where it is missing; false at first.
    bool createMissingDirectories() const { return m_createMissingDirectories; }
    void setCreateMissingDirectories(bool creates) { m_createMissingDirectories = creates; }

    /// Gives folders so made the tags of the source's folder; false at first.
    bool copyFinderTagsToNewDirectories() const { return m_copyFinderTagsToNewDirectories; }
    void setCopyFinderTagsToNewDirectories(bool copies) { m_copyFinderTagsToNewDirectories = copies; }

    /// Unlocks locked sources that are moved; true at first.
    bool unlockFiles() const { return m_unlockFiles; }
    void setUnlockFiles(bool unlocks) { m_unlockFiles = unlocks; }

    /// Makes folders that cannot be written 0755; true at first.
    bool fixPermissions() const { return m_fixPermissions; }
    void setFixPermissions(bool fixes) { m_fixPermissions = fixes; }

    /// What is done about every name that is taken.
    unsigned fileExistsRecovery() const { return m_fileExistsRecovery; }
    void setFileExistsRecovery(unsigned recovery) { m_fileExistsRecovery = recovery; }

    /// The answer that was chosen for all; 0 for none. Whoever begins a new batch sets it back.
    unsigned appliedToAllRecovery() const { return m_appliedToAllRecovery; }
    void setAppliedToAllRecovery(unsigned recovery) { m_appliedToAllRecovery = recovery; }

    /// Decides in the place of fileExistsRecovery(), for each item, on the thread of its operation.
    using FileExistsPolicy =
        std::function<unsigned(const ZEVError &error, const QUrl &srcURL, const QUrl &dstURL)>;
    void setFileExistsPolicy(const FileExistsPolicy &policy);

    /// The conflict alert shows size, date and picture of both items, and what \a describer says of each, a
    /// song's length for instance; an empty one adds nothing. Off at first. Main thread.
    using ConflictDescriber = std::function<QString(const QUrl &url)>;
    void setShowsConflictDetails(bool shows, const ConflictDescriber &describer = {});

    /// When it cannot be helped, the error is that of the first failure, not of the repair. Where both were to
    /// be kept or one to be replaced, what that failed for is the error beneath: see
    /// ZEVFileErrors::fullDescription(). Folders that were made for nothing go again.
    bool copyItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error = nullptr) override;
    bool moveItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error = nullptr) override;

    /// True when the failure was repaired and \a fileManager has then succeeded. A name that is taken is only
    /// seen to when a ZEVFileManager has failed, which keeps the search for a free name from searching anew.
    bool attemptRecoveryFromError(ZEVPlainFileManager &fileManager, const ZEVError &error, const QUrl &srcURL,
                                  const QUrl &dstURL);
    bool attemptFixingNoSuchFileAtURL(ZEVPlainFileManager &fileManager, const QUrl &dstURL,
                                      const QUrl &srcURL);

    /// An invalid \a srcURL is none.
    bool attemptFixingPermissionError(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                      const QUrl &srcURL, const QUrl &dstURL);

    bool shouldProceedAfterErrorMovingItemAtURL(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                                const QUrl &srcURL, const QUrl &dstURL) override;
    bool shouldProceedAfterErrorCopyingItemAtURL(ZEVPlainFileManager &fileManager, const ZEVError &error,
                                                 const QUrl &srcURL, const QUrl &dstURL) override;

    /// Sets the POSIX mode to 0755.
    bool fixPermissionsOfItemAtURL(const QUrl &url, ZEVError *error = nullptr);

    /// \a dstURL becomes the one that was used.
    bool attemptFixingFileExistsError(const ZEVError &error, unsigned recovery, const QUrl &srcURL,
                                      QUrl &dstURL);
    bool attemptRecoveryFromFileExistsErrorByFindingUniqueNameAtURL(const ZEVError &fileExistsError,
                                                                    QUrl &dstURL, const QUrl &srcURL,
                                                                    ZEVError *error = nullptr);
    bool attemptRecoveryFromFileExistsErrorByReplacingItemAtURL(const ZEVError &fileExistsError, QUrl &dstURL,
                                                                const QUrl &srcURL,
                                                                ZEVError *error = nullptr);

    /// For callers that let the user decide, on any thread: shows the alert on the main thread, unless an
    /// answer for all is there, and waits. A quitting application answers "Stop". One question at a time.
    ZEVFileExistsRecovery userRequestedRecoveryForFileExistsError(const ZEVError &error,
                                                                  bool showSuppression);

    /// Main thread. Without \a isSuppressed there is no "Apply to All".
    ZEVFileExistsRecovery runModalRecoveryAlertForFileExistsError(const ZEVError &error,
                                                                  bool *isSuppressed = nullptr);

protected:
    bool resolvesConflicts() const override { return true; }

private:
    class Run;

    unsigned recoveryForItem(const ZEVError &error, const QUrl &srcURL, const QUrl &dstURL) const;
    ZEVFileExistsRecovery ask(const ZEVError &error, bool showSuppression);

    mutable QMutex m_mutex; ///< of the objects below
    std::shared_ptr<ZEVFileManagerDelegate> m_sandboxDelegate;
    FileExistsPolicy m_policy;

    std::atomic<bool> m_createMissingDirectories = false;
    std::atomic<bool> m_copyFinderTagsToNewDirectories = false;
    std::atomic<bool> m_unlockFiles = true;
    std::atomic<bool> m_fixPermissions = true;
    std::atomic<unsigned> m_fileExistsRecovery = 0;
    std::atomic<unsigned> m_appliedToAllRecovery = 0;
    bool m_showsConflictDetails = false;
    ConflictDescriber m_describer;
};
