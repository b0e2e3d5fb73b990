// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemReplacement_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemMoving_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVTemporaries_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ZEVItemRenaming;

/// A folder that changes its parent is written itself: one that may not be is made writable meanwhile.
class Writable {
public:
    explicit Writable(const ZEVEntry &entry)
    {
        if (entry.readStatus(m_status) || !S_ISDIR(m_status.st_mode) || (m_status.st_mode & S_IWUSR))
            return;
        m_folder = ZEVDescriptor(
            openat(entry.folder, entry.name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (m_folder && fchmod(m_folder.get(), (m_status.st_mode & 07777) | S_IWUSR) < 0)
            m_folder.close();
    }
    ~Writable()
    {
        if (m_folder)
            fchmod(m_folder.get(), m_status.st_mode & 07777);
    }
    Q_DISABLE_COPY_MOVE(Writable)

    bool isNeeded() const { return bool(m_folder); }

private:
    ZEVDescriptor m_folder;
    struct stat m_status { };
};

/// Runs \a renaming again with both items made writable, where that is what it lacks.
int withRights(const ZEVEntry &one, const ZEVEntry &other, const auto &renaming)
{
    const int error = renaming();
    if (error != EACCES && error != EPERM)
        return error;
    const Writable first(one);
    const Writable second(other);
    return first.isNeeded() || second.isNeeded() ? renaming() : error;
}

int bring(const ZEVEntry &from, const ZEVEntry &to)
{
    const int error = withRights(from, to, [&] { return renameWithoutReplacing(from, to); });
    return error == EXDEV ? ZEVItemMoving::moveByCopying({from, from.name}, {to, to.name}, {}).code : error;
}

/// "Album 2", or what is free after that.
int bringAside(const ZEVEntry &item, ZEVEntry &aside)
{
    constexpr int LastNumber = 999;
    const ZEVFileName name(item.name);
    int error = EEXIST;
    for (int number = 2; error == EEXIST && number <= LastNumber; ++number) {
        aside = item.sibling(name.numbered(number, ZEVFileName::Dot::BeforeExtensionOnly));
        error = bring(item, aside);
    }
    return error;
}

bool areOnOneVolume(const ZEVEntry &one, const ZEVEntry &other)
{
    struct stat first { };
    struct stat second { };
    return one.readStatus(first) == 0 && other.readStatus(second) == 0 && first.st_dev == second.st_dev;
}

} // namespace

int ZEVItemReplacement::put()
{
    const int error = m_to.checkIsFree();
    if (error != EEXIST)
        return error ? error : putWhereFree();
    return exchange();
}

int ZEVItemReplacement::putWhereFree()
{
    return withRights(m_from, m_to, [this] { return renameWithoutReplacing(m_from, m_to); });
}

/// A volume seen in two places, or in two layers, lets no items change places, nor do some file systems.
int ZEVItemReplacement::exchange()
{
    const int error = withRights(m_from, m_to, [this] { return ZEVItemRenaming::exchange(m_from, m_to); });
    if (meansUnsupported(error) || (error == EXDEV && areOnOneVolume(m_from, m_to)))
        return exchangeInSteps();
    if (!error)
        m_old = m_from;
    return error;
}

int ZEVItemReplacement::exchangeInSteps()
{
    ZEVEntry aside;
    if (const int error = bringAside(m_to, aside))
        return error;
    if (const int error = bring(m_from, m_to)) {
        if (bring(aside, m_to))
            qCWarning(zevLog).noquote() << "An item could not get back its name from:" << aside.name;
        return error;
    }
    m_old = aside;
    return 0;
}

int ZEVItemReplacement::takeBack()
{
    if (m_old.name.isEmpty())
        return bring(m_to, m_from);
    if (m_old.name == m_from.name && m_old.folder == m_from.folder)
        return withRights(m_from, m_to, [this] { return ZEVItemRenaming::exchange(m_from, m_to); });
    if (const int error = bring(m_to, m_from))
        return error;
    return bring(m_old, m_to);
}

/// What was replaced leaves its name at once, and then altogether.
int ZEVItemReplacement::finish()
{
    if (m_old.name.isEmpty())
        return 0;
    const ZEVEntry hidden = m_old.sibling(ZEVTemporaries::name());
    const int renaming = renameWithoutReplacing(m_old, hidden);
    if (renaming && renaming != EXDEV)
        return renaming;
    const ZEVEntry &rest = renaming ? m_old : hidden;
    qint64 removed = 0;
    const int error = remove(rest, Force::MakeWritable, &removed);
    if (error && removed == 0 && (renaming || renameWithoutReplacing(hidden, m_old) == 0))
        return error;
    if (error)
        qCWarning(zevLog).noquote() << "Failed to remove all of a replaced item:" << rest.name;
    return 0;
}
