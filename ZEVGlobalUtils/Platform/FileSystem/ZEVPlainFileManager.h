// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

class ZEVError;
class ZEVPlainFileManagerDelegate;

/// Copies, moves, replaces and removes files and whole folders. Nothing is ever written over an item unless
/// replacing was asked for; what fails or is cancelled leaves both sides as they were.
///
/// Until it is whole, a copy lies beside its destination under a name of temporaryNameFilter(), readable to
/// its owner alone. Only a process that is killed leaves one behind, and the next operation in that folder
/// removes it, a minute later at the earliest; nothing that is the only one of its kind ever stays there.
///
/// Copies keep mode, times, `user.*` attributes, access control lists, holes, links, and names of one item in
/// one folder as such. What a volume does not keep is left out, unless others could then read what they could
/// not; sockets and devices are refused. Symbolic links are handled as links. A move to another volume
/// removes nothing that it has not copied as it is, and fails where the source changes meanwhile.
///
/// Whenever the process is killed, the old item or the new one stands at the destination, whole. Where a file
/// system cannot let two items change places (FAT, exFAT, NTFS, some shares), a folder that is being
/// replaced may then be found with a number after its name, and where it has no hard links either (FAT,
/// exFAT), a file that another program puts under the wanted name in the moment of the renaming is replaced.
///
/// URLs are those of ZEVFileURL; errors those of ZEVFileErrors. Any thread, one at a time.
class ZEV_EXPORT ZEVPlainFileManager {
public:
    /// The shared one: has no delegate, reports no progress. Any number of threads.
    static ZEVPlainFileManager *defaultManager();

    ZEVPlainFileManager() = default;
    virtual ~ZEVPlainFileManager();
    Q_DISABLE_COPY_MOVE(ZEVPlainFileManager)

    /// A wildcard, as QDir and file dialogs take it, for the names of unfinished items.
    static QString temporaryNameFilter();

    /// Asked about failures of copying and moving; a plain pointer, which must outlive the operations.
    ZEVPlainFileManagerDelegate *delegate() const { return m_delegate; }
    void setDelegate(ZEVPlainFileManagerDelegate *delegate) { m_delegate = delegate; }

    /// Told on the operation's thread how many bytes it has copied so far; false cancels the operation, which
    /// then fails with ECANCELED underneath.
    using ProgressHandler = std::function<bool(qint64 bytes)>;
    const ProgressHandler &progressHandler() const { return m_progressHandler; }
    void setProgressHandler(const ProgressHandler &handler) { m_progressHandler = handler; }

    /// The destination is the new item itself, not its folder. To move an item to a name that differs in case
    /// only is no conflict where the file system takes both for the same.
    virtual bool copyItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error = nullptr);
    virtual bool moveItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error = nullptr);

    /// Puts \a newItemURL in the place of \a originalItemURL, at once and durably, with its own metadata.
    /// Both lie on one volume, else the error is EXDEV underneath.
    bool replaceItemAtURL(const QUrl &originalItemURL, const QUrl &newItemURL,
                          QUrl *resultingItemURL = nullptr, ZEVError *error = nullptr);

    bool removeItemAtURL(const QUrl &url, ZEVError *error = nullptr);

    /// With intermediate folders, one that exists already is a success.
    bool createDirectoryAtURL(const QUrl &url, bool withIntermediateDirectories, ZEVError *error = nullptr);

    /// A new, private folder on the volume of \a url, beside it; nil and the error when it cannot be made. It
    /// is for copies only: what a process leaves in it goes with it.
    std::optional<QUrl> itemReplacementDirectory(const QUrl &url, ZEVError *error = nullptr);

    /// All of \a contents or no file; never over an item that exists.
    bool createFileAtURL(const QUrl &url, const QByteArray &contents, ZEVError *error = nullptr);

    /// \a permissions are the POSIX mode, such as 0755. Follows links, as all of the following do.
    bool setPosixPermissions(unsigned permissions, const QUrl &url, ZEVError *error = nullptr);

    bool fileExistsAtURL(const QUrl &url, bool *isDirectory = nullptr) const;

    /// The desktop's tags (`user.xdg.tags`); nil when they cannot be read.
    std::optional<QStringList> tagNamesOfItemAtURL(const QUrl &url) const;
    bool setTagNames(const QStringList &names, const QUrl &url);

protected:
    /// Moves the item into the place of another one, also from another volume.
    bool moveItemReplacingItemAtURL(const QUrl &srcURL, const QUrl &dstURL, ZEVError *error);

    /// Whether its operations resolve the conflicts of names that they meet.
    virtual bool resolvesConflicts() const { return false; }

private:
    friend class ZEVFileManager; // asks it of others

    ZEVPlainFileManagerDelegate *m_delegate = nullptr;
    ProgressHandler m_progressHandler;
};
