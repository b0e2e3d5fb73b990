// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileFailure_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// Items on their way from one place to another.
namespace ZEVItemMoving {

/// One of the two places, with the path that failures tell of.
struct End {
    ZEVEntry entry;
    QByteArray path;
};

enum class Taken {
    Refuse, ///< EEXIST where the name is taken
    Replace,
};

/// Where renaming cannot: copies, then takes the source away. The copy is on the disk and in its place before
/// the source is touched, and nothing goes that was not copied as it is: where anything has changed meanwhile
/// both items stay. What may not be removed is refused before anything is done.
ZEVFileFailure moveByCopying(const End &from, const End &to, const ZEVFileOperations::Handling &handling,
                             Taken taken = Taken::Refuse);

/// \a to is what \a from was, durably, and what was at \a to is gone; a folder may take the place of a file
/// and the other way round. EXDEV across volumes.
ZEVFileFailure replace(const End &to, const End &from);

/// What forbids to bring \a from to \a to, before anything is done; a name that is taken is none.
ZEVFileFailure obstacle(const End &from, const End &to);

/// The same of an item that is to take the place of another one: not of a folder around it.
ZEVFileFailure obstacleToReplacing(const End &from, const End &to);

/// The reason that a failed renaming has, besides what its code says.
ZEVFileFailure failureOfRenaming(int error, const End &from, const End &to);

} // namespace ZEVItemMoving
