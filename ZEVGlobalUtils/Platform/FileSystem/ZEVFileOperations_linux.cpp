// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemCopying_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemMoving_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVTemporaries_p.h>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ZEVItemRenaming;
using Reason = ZEVFileFailure::Reason;

ZEVItemMoving::End end(const ZEVPlace &place) { return {place.entry(), place.path()}; }

/// A source that is not there is missing itself, a destination lacks its folder.
ZEVFileFailure failureOfOpening(const ZEVPlace &source, const ZEVPlace &destination)
{
    if (source.error())
        return source.error();
    const int error = destination.error();
    const bool isOfFolder = error == ENOENT || error == ENOTDIR || error == EACCES;
    return isOfFolder ? ZEVFileFailure(error, Reason::Folder, destination.folderPath()) : error;
}

/// Both places are open, the user's own leftovers in them have gone, and nothing forbids the operation.
ZEVFileFailure prepare(const ZEVPlace &source, const ZEVPlace &destination)
{
    if (ZEVFileFailure failure = failureOfOpening(source, destination))
        return failure;
    for (const ZEVPlace *place : {&source, &destination}) {
        const ZEVDescriptor folder = ZEVPlaces::openFolder({place->entry().folder, "."});
        if (folder)
            ZEVTemporaries::clearLeftovers(folder.get());
    }
    return ZEVItemMoving::obstacle(end(source), end(destination));
}

ZEVFileFailure copyBeside(const ZEVPlace &source, const ZEVPlace &destination,
                          const ZEVFileOperations::Handling &handling)
{
    const ZEVEntry temporary = destination.entry().sibling(ZEVTemporaries::name());
    ZEVItemCopying copying(handling, ZEVItemCopying::Owner::Process, source.path(), destination.path());
    ZEVFileFailure failure = copying.copy(source.entry(), temporary);
    if (!failure) {
        const int error = renameWithoutReplacing(temporary, destination.entry());
        failure = ZEVItemMoving::failureOfRenaming(error, end(destination), end(destination));
    }
    if (failure)
        remove(temporary, Force::MakeWritable);
    return failure;
}

int writeFile(const ZEVEntry &entry, const QByteArray &contents)
{
    ZEVDescriptor file(openat(entry.folder, entry.name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                              0666)); // less what umask takes
    if (!file)
        return errno;
    for (qsizetype begin = 0; begin < contents.size();) {
        const ssize_t written =
            write(file.get(), contents.constData() + begin, size_t(contents.size() - begin));
        if (written < 0 && errno != EINTR)
            return errno;
        begin += std::max<ssize_t>(written, 0);
    }
    return file.close();
}

int makeFolder(const QByteArray &path)
{
    return ZEVPlaces::errnoOf(mkdir(path.constData(), 0777)); // less what umask takes
}

} // namespace

ZEVFileFailure ZEVFileOperations::copyItem(const QByteArray &source, const QByteArray &destination,
                                           const Handling &handling)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    if (ZEVFileFailure failure = prepare(from, to))
        return failure;
    if (const int error = to.entry().checkIsFree())
        return error;
    return copyBeside(from, to, handling);
}

ZEVFileFailure ZEVFileOperations::moveItem(const QByteArray &source, const QByteArray &destination,
                                           const Handling &handling)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    if (ZEVFileFailure failure = prepare(from, to))
        return failure;
    int error = to.entry().checkIsFree();
    if (error == EEXIST && isSameName(from.entry(), to.entry()))
        return ZEVItemMoving::failureOfRenaming(rename(from.entry(), to.entry()), end(from), end(to));
    if (error)
        return error;
    error = renameWithoutReplacing(from.entry(), to.entry());
    return error == EXDEV ? ZEVItemMoving::moveByCopying(end(from), end(to), handling)
                          : ZEVItemMoving::failureOfRenaming(error, end(from), end(to));
}

ZEVFileFailure ZEVFileOperations::replaceItem(const QByteArray &item, const QByteArray &replacement)
{
    const ZEVPlace to(item);
    const ZEVPlace from(replacement);
    if (ZEVFileFailure failure = prepare(from, to))
        return failure;
    if (ZEVFileFailure failure = ZEVItemMoving::obstacleToReplacing(end(from), end(to)))
        return failure;
    return ZEVItemMoving::replace(end(to), end(from));
}

ZEVFileFailure ZEVFileOperations::moveReplacing(const QByteArray &source, const QByteArray &destination,
                                                const Handling &handling)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    if (ZEVFileFailure failure = prepare(from, to))
        return failure;
    if (ZEVFileFailure failure = ZEVItemMoving::obstacleToReplacing(end(from), end(to)))
        return failure;
    if (ZEVFileFailure failure = obstacleToRemoval(to.entry(), to.path(), Force::MakeWritable))
        return failure;
    return ZEVItemMoving::moveByCopying(end(from), end(to), handling, ZEVItemMoving::Taken::Replace);
}

ZEVFileFailure ZEVFileOperations::removeItem(const QByteArray &path)
{
    const ZEVPlace place(path);
    return place.error() ? place.error() : remove(place.entry(), Force::None);
}

ZEVFileFailure ZEVFileOperations::removeTemporary(const QByteArray &path)
{
    const ZEVPlace place(path);
    return place.error() ? place.error() : remove(place.entry(), Force::MakeWritable);
}

ZEVFileFailure ZEVFileOperations::obstacleToReplacing(const QByteArray &source, const QByteArray &destination)
{
    const ZEVPlace from(source);
    const ZEVPlace to(destination);
    ZEVFileFailure failure = failureOfOpening(from, to);
    return failure ? failure : ZEVItemMoving::obstacleToReplacing(end(from), end(to));
}

ZEVFileFailure ZEVFileOperations::createDirectory(const QByteArray &path, bool withIntermediateDirectories,
                                                  QByteArrayList *created)
{
    const qsizetype slash = path.lastIndexOf('/');
    int error = makeFolder(path);
    if (error == ENOENT && withIntermediateDirectories && slash > 0) {
        if (ZEVFileFailure failure = createDirectory(path.first(slash), true, created))
            return failure;
        error = makeFolder(path);
    }
    if (!error && created)
        created->append(path);
    const bool isThere =
        error == EEXIST && withIntermediateDirectories && status(path) && status(path)->isDirectory;
    if (error == EACCES || error == EROFS || error == ENOENT || error == ENOTDIR)
        return {error, Reason::Folder, path.first(std::max<qsizetype>(slash, 1))};
    return isThere ? 0 : error;
}

void ZEVFileOperations::removeEmptyDirectory(const QByteArray &path) { rmdir(path.constData()); }

ZEVFileFailure ZEVFileOperations::createTemporaryDirectory(const QByteArray &path, QByteArray &created)
{
    const QByteArray folder = path.first(path.lastIndexOf('/') + 1);
    created = folder + ZEVTemporaries::name();
    const int error = ZEVPlaces::errnoOf(mkdir(created.constData(), S_IRWXU));
    return error ? ZEVFileFailure(error, Reason::Folder, folder.chopped(folder.size() > 1 ? 1 : 0)) : 0;
}

ZEVFileFailure ZEVFileOperations::createFile(const QByteArray &path, const QByteArray &contents)
{
    const ZEVPlace place(path);
    if (ZEVFileFailure failure = failureOfOpening(place, place))
        return failure;
    if (const int error = place.entry().checkIsFree()) // saves writing it all; the renaming decides
        return error;
    const ZEVEntry temporary = place.entry().sibling(ZEVTemporaries::name());
    int error = writeFile(temporary, contents);
    if (!error)
        error = renameWithoutReplacing(temporary, place.entry());
    if (error)
        remove(temporary, Force::None);
    return ZEVItemMoving::failureOfRenaming(error, end(place), end(place));
}
