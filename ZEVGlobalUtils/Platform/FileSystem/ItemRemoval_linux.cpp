// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

class Removal {
public:
    Removal(ZEVItemRenaming::Force force, qint64 &removed)
        : m_force(force)
        , m_removed(removed)
    {
    }

    int remove(const ZEVEntry &entry)
    {
        struct stat status { };
        if (const int error = entry.readStatus(status))
            return error;
        const bool isFolder = S_ISDIR(status.st_mode);
        const bool isOpened = isFolder && m_force == ZEVItemRenaming::Force::MakeWritable
            && (status.st_mode & S_IRWXU) != S_IRWXU
            && fchmodat(entry.folder, entry.name.constData(), S_IRWXU, 0) == 0;
        int error = isFolder ? empty(entry) : 0;
        if (!error)
            error = unlink(entry, isFolder ? AT_REMOVEDIR : 0);
        if (error && isOpened)
            fchmodat(entry.folder, entry.name.constData(), status.st_mode & 07777, 0);
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
        for (const QByteArray &name : names) {
            if (const int error = remove({folder.get(), name}))
                return error;
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
};

} // namespace

int ZEVItemRenaming::remove(const ZEVEntry &entry, Force force, qint64 *removed)
{
    qint64 count = 0;
    return Removal(force, removed ? *removed : count).remove(entry);
}
