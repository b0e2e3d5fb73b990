// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVCopiedItems_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Removal {
public:
    Removal(ZEVItemRenaming::Force force, qint64 &removed, const ZEVCopiedItems *copied = nullptr)
        : m_force(force)
        , m_removed(removed)
        , m_copied(copied)
    {
    }

    const QByteArray &name() const { return m_name; }

    int remove(const ZEVEntry &entry)
    {
        struct stat status { };
        if (const int error = entry.readStatus(status))
            return m_copied && error == ENOENT ? 0 : error; // whoever took it away has it
        if (m_copied && !m_copied->hasBytesOf(m_name, status))
            return EBUSY;
        const bool isFolder = S_ISDIR(status.st_mode);
        const bool isOpened = isFolder && m_force == ZEVItemRenaming::Force::MakeWritable
            && (status.st_mode & S_IRWXU) != S_IRWXU
            && fchmodat(entry.folder, entry.name.constData(), S_IRWXU, 0) == 0;
        int error = isFolder ? empty(entry) : 0;
        if (!error)
            error = unlink(entry, isFolder ? AT_REMOVEDIR : 0);
        if (error && isOpened
            && fchmodat(entry.folder, entry.name.constData(), status.st_mode & 07777, 0) < 0)
            qCWarning(zevLog).noquote() << "A folder that could not be removed stays writable:" << entry.name;
        return error;
    }

private:
    int empty(const ZEVEntry &entry)
    {
        const ZEVDescriptor folder = ZEVPlaces::openFolder(entry);
        if (!folder)
            return errno;
        QByteArrayList names;
        if (const int error = ZEVPlaces::readNames(folder.get(), names))
            return error;
        const qsizetype length = m_name.size();
        for (const QByteArray &name : names) {
            m_name += '/' + name;
            if (const int error = remove({folder.get(), name}))
                return error; // the name stays that of the item
            m_name.truncate(length);
        }
        return 0;
    }

    int unlink(const ZEVEntry &entry, int flags)
    {
        const int error = ZEVPlaces::errnoOf(unlinkat(entry.folder, entry.name.constData(), flags));
        m_removed += error ? 0 : 1;
        return error;
    }

    ZEVItemRenaming::Force m_force;
    qint64 &m_removed;
    const ZEVCopiedItems *m_copied;
    QByteArray m_name; ///< from the item on that is removed
};

/// Looks for what would stop a removal.
class Survey {
public:
    explicit Survey(ZEVItemRenaming::Force force)
        : m_force(force)
    {
    }

    /// \a folder is that which the entry lies in.
    ZEVFileFailure look(const ZEVEntry &entry, const struct stat &folder, const QByteArray &path) const
    {
        struct stat status { };
        if (const int error = entry.readStatus(status))
            return error == ENOENT ? ZEVFileFailure() : ZEVFileFailure(error, Reason::Removal, path);
        const bool isOthers = !isOurs(folder) && !isOurs(status);
        if (((folder.st_mode & S_ISVTX) && isOthers) || isFixed(entry.folder, entry.name))
            return {EPERM, Reason::Removal, path};
        return S_ISDIR(status.st_mode) ? lookWithin(entry, status, path) : 0;
    }

    /// What stops everything in a folder from being removed, as an error of the system; 0 for nothing.
    static int obstacleOf(int folder)
    {
        const int error = ZEVPlaces::errnoOf(faccessat(folder, ".", W_OK | X_OK, AT_EACCESS));
        return error == 0 && isFixed(folder, "") ? EACCES : error;
    }

private:
    using Reason = ZEVFileFailure::Reason;

    ZEVFileFailure lookWithin(const ZEVEntry &entry, const struct stat &status, const QByteArray &path) const
    {
        const bool canOpen = m_force == ZEVItemRenaming::Force::MakeWritable && isOurs(status);
        const ZEVDescriptor folder = ZEVPlaces::openFolder(entry);
        if (!folder)
            return canOpen ? 0 : ZEVFileFailure(errno, Reason::Removal, path);
        QByteArrayList names;
        if (const int error = ZEVPlaces::readNames(folder.get(), names))
            return {error, Reason::Removal, path};
        if (const int error = names.isEmpty() || canOpen ? 0 : obstacleOf(folder.get()))
            return {error, Reason::Removal, path + '/' + names.first()};
        for (const QByteArray &name : std::as_const(names)) {
            if (ZEVFileFailure failure = look({folder.get(), name}, status, path + '/' + name))
                return failure;
        }
        return 0;
    }

    static bool isOurs(const struct stat &status) { return geteuid() == 0 || status.st_uid == geteuid(); }

    /// Immutable, or one that is only added to.
    static bool isFixed(int folder, const QByteArray &name)
    {
        struct statx status { };
        const int flags = AT_SYMLINK_NOFOLLOW | AT_EMPTY_PATH | AT_STATX_DONT_SYNC;
        return statx(folder, name.constData(), flags, STATX_TYPE, &status) == 0
            && (status.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0;
    }

    ZEVItemRenaming::Force m_force;
};

} // namespace

ZEVFileFailure ZEVItemRenaming::obstacleToRemoval(const ZEVEntry &entry, const QByteArray &path, Force force)
{
    const Survey survey(force);
    struct stat folder { };
    if (fstat(entry.folder, &folder) < 0)
        return errno;
    if (const int error = Survey::obstacleOf(entry.folder))
        return {error, ZEVFileFailure::Reason::Folder,
                path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1))};
    return survey.look(entry, folder, path);
}

int ZEVItemRenaming::remove(const ZEVEntry &entry, Force force, qint64 *removed)
{
    qint64 count = 0;
    return Removal(force, removed ? *removed : count).remove(entry);
}

int ZEVItemRenaming::removeCopied(const ZEVEntry &entry, const ZEVCopiedItems &copied, QByteArray &changed,
                                  qint64 &removed)
{
    Removal removal(Force::None, removed, &copied);
    const int error = removal.remove(entry);
    changed = removal.name();
    return error == ENOTEMPTY ? EBUSY : error; // what has just come in was not copied
}
