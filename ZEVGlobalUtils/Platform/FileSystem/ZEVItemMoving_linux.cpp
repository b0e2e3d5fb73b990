// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemMoving_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemReplacement_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVTemporaries_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ZEVItemRenaming;
using namespace ZEVItemMoving;
using Compare = ZEVCopiedItems::Compare;
using Reason = ZEVFileFailure::Reason;

/// Walks up from the folder of \a inner.
bool liesWithin(const ZEVEntry &inner, const struct stat &outer)
{
    ZEVDescriptor folder(openat(inner.folder, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat status { };
    while (folder && fstat(folder.get(), &status) == 0) {
        if (ZEVPlaces::isSameItem(status, outer))
            return true;
        const struct stat below = status;
        folder = ZEVDescriptor(openat(folder.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!folder || fstat(folder.get(), &status) < 0 || ZEVPlaces::isSameItem(status, below))
            return false; // the root is its own parent
    }
    return false;
}

bool isWritable(const ZEVEntry &entry) { return faccessat(entry.folder, ".", W_OK | X_OK, AT_EACCESS) == 0; }

QByteArray folderOf(const QByteArray &path)
{
    return path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

ZEVFileFailure checkUnchanged(const ZEVCopiedItems &copied, const End &source, const ZEVEntry &entry,
                              Compare compare)
{
    QByteArray changed;
    const int error = copied.compare(entry, compare, changed);
    return error == EBUSY ? ZEVFileFailure(error, Reason::Changed, source.path + changed) : error;
}

/// Where the item cannot step aside, since it lies in a lower layer.
ZEVFileFailure removeInPlace(const End &source, const ZEVCopiedItems &copied)
{
    qint64 removed = 0;
    QByteArray changed;
    const int error = removeCopied(source.entry, copied, changed, removed);
    if (error == EBUSY)
        return {error, Reason::Changed, source.path + changed};
    if (error && removed > 0)
        qCWarning(zevLog).noquote() << "Failed to remove all of a moved item:" << source.path;
    return removed > 0 ? 0 : error;
}

/// What somebody still writes to, who had it open before, comes back to its name with all that is left.
ZEVFileFailure removeAside(const End &source, const ZEVEntry &aside, const ZEVCopiedItems &copied,
                           const auto &comeBack)
{
    qint64 removed = 0;
    QByteArray changed;
    const int error = removeCopied(aside, copied, changed, removed);
    if (error == EBUSY || (error && removed == 0)) {
        comeBack(aside);
        return error == EBUSY ? ZEVFileFailure(error, Reason::Changed, source.path + changed) : error;
    }
    if (error)
        qCWarning(zevLog).noquote() << "Failed to remove all of a moved item:" << aside.name;
    return 0;
}

/// The item leaves its name in one step, so that nobody comes upon half of it and nothing comes into it any
/// more; only then it is seen whether it is still what was copied. Until that is known its name tells where
/// it belongs, from then on it is a leftover.
ZEVFileFailure takeAway(const End &source, const ZEVCopiedItems &copied)
{
    const ZEVEntry aside = source.entry.sibling(ZEVTemporaries::nameFor(source.entry.name));
    const auto comeBack = [&](const ZEVEntry &from) {
        if (renameWithoutReplacing(from, source.entry))
            qCWarning(zevLog).noquote() << "An item could not get back its name from:" << from.name;
    };
    if (const int error = renameWithoutReplacing(source.entry, aside))
        return error == EXDEV ? removeInPlace(source, copied) : error;
    if (ZEVFileFailure failure = checkUnchanged(copied, source, aside, Compare::NotTimeOfChange)) {
        comeBack(aside);
        return failure;
    }
    const ZEVEntry hidden = source.entry.sibling(ZEVTemporaries::name());
    const ZEVEntry &rest = renameWithoutReplacing(aside, hidden) ? aside : hidden;
    return removeAside(source, rest, copied, comeBack);
}

/// What has changed after the copy came to its place stays, as does the copy, which others may know by now.
ZEVFileFailure bringIn(const ZEVEntry &copy, const End &from, const End &to, const ZEVCopiedItems &copied,
                       Taken taken)
{
    if (taken == Taken::Refuse) {
        if (const int error = to.entry.checkIsFree())
            return error;
    }
    ZEVItemReplacement replacement(to.entry, copy);
    const int error = taken == Taken::Replace ? replacement.put() : renameWithoutReplacing(copy, to.entry);
    if (error)
        return failureOfRenaming(error, to, to);
    synchronizeFolder(to.entry);
    ZEVFileFailure failure = takeAway(from, copied);
    if (failure && failure.reason != Reason::Changed && replacement.takeBack() == 0)
        return failure;
    replacement.finish();
    return failure;
}

/// Two names of one file would both stay if they were renamed, as POSIX has it.
int replaceItself(const End &to, const End &from)
{
    const bool isSame = from.entry.name == to.entry.name && ZEVPlaces::isSameFolder(from.entry, to.entry);
    return isSame ? 0 : ZEVPlaces::errnoOf(unlinkat(from.entry.folder, from.entry.name.constData(), 0));
}

ZEVFileFailure replaceByExchange(const End &to, const End &from)
{
    if (ZEVFileFailure failure = obstacleToRemoval(to.entry, to.path, Force::MakeWritable))
        return failure;
    ZEVItemReplacement replacement(to.entry, from.entry);
    if (const int error = replacement.put())
        return failureOfRenaming(error, from, to);
    const int error = replacement.finish();
    return error && replacement.takeBack() == 0 ? error : 0;
}

ZEVFileFailure put(const End &to, const End &from)
{
    struct stat old { };
    struct stat replacement { };
    if (const int error = from.entry.readStatus(replacement))
        return error;
    const int error = to.entry.readStatus(old);
    if (error == ENOENT)
        return failureOfRenaming(ZEVItemReplacement(to.entry, from.entry).put(), from, to);
    if (error)
        return error;
    if (isSameName(to.entry, from.entry))
        return failureOfRenaming(rename(from.entry, to.entry), from, to);
    if (ZEVPlaces::isSameItem(old, replacement))
        return replaceItself(to, from);
    const bool isSimple = !S_ISDIR(old.st_mode) && !S_ISDIR(replacement.st_mode);
    return isSimple ? failureOfRenaming(rename(from.entry, to.entry), from, to) : replaceByExchange(to, from);
}

} // namespace

ZEVFileFailure ZEVItemMoving::obstacle(const End &from, const End &to)
{
    struct stat status { };
    if (const int error = from.entry.readStatus(status))
        return error;
    if (S_ISDIR(status.st_mode) && liesWithin(to.entry, status))
        return {EINVAL, Reason::IntoItself, from.path};
    const int error = to.entry.readStatus(status);
    return error == ENOENT ? ZEVFileFailure() : failureOfRenaming(error, from, to);
}

ZEVFileFailure ZEVItemMoving::obstacleToReplacing(const End &from, const End &to)
{
    struct stat status { };
    const bool isAround =
        to.entry.readStatus(status) == 0 && S_ISDIR(status.st_mode) && liesWithin(from.entry, status);
    return isAround ? ZEVFileFailure(EINVAL, Reason::Ancestor, to.path) : 0;
}

ZEVFileFailure ZEVItemMoving::failureOfRenaming(int error, const End &from, const End &to)
{
    switch (error) {
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
        return {error, Reason::Name, to.path};
    case EACCES:
    case EPERM:
        if (!isWritable(to.entry))
            return {error, Reason::Folder, folderOf(to.path)};
        if (!isWritable(from.entry))
            return {error, Reason::Folder, folderOf(from.path)};
        return error;
    default:
        return error;
    }
}

ZEVFileFailure ZEVItemMoving::moveByCopying(const End &from, const End &to,
                                            const ZEVFileOperations::Handling &handling, Taken taken)
{
    if (ZEVFileFailure failure = obstacleToRemoval(from.entry, from.path, Force::None))
        return failure;
    const ZEVEntry temporary = to.entry.sibling(ZEVTemporaries::name());
    ZEVItemCopying copying(handling, ZEVItemCopying::Owner::Source, from.path, to.path);
    ZEVFileFailure failure = copying.copy(from.entry, temporary);
    if (!failure)
        failure = synchronize(temporary);
    if (!failure)
        failure = checkUnchanged(copying.copied(), from, from.entry, Compare::Everything);
    if (!failure)
        failure = bringIn(temporary, from, to, copying.copied(), taken);
    if (failure)
        remove(temporary, Force::MakeWritable);
    return failure;
}

ZEVFileFailure ZEVItemMoving::replace(const End &to, const End &from)
{
    if (const int error = synchronize(from.entry))
        return error;
    if (ZEVFileFailure failure = put(to, from))
        return failure;
    // The item is in its place; a folder that cannot be written out is no reason to say that it is not.
    if (synchronizeFolder(to.entry) || synchronizeFolder(from.entry))
        qCWarning(zevLog) << "Failed to write out the folder of a replaced item";
    return 0;
}
