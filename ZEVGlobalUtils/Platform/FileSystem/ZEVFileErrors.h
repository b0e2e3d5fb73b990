// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QUrl>

/// The errors of operations on files, all made here. Any thread.
namespace ZEVFileErrors {

/// Codes of ZEVError::CocoaErrorDomain.
enum Code : qint64 {
    NoSuchFile = 4,
    FileWriteUnknown = 512, ///< whatever is none of the others: see the underlying error
    FileWriteNoPermission = 513,
    FileWriteFileExists = 516,
};

/// Keys of ZEVError::userInfo().
inline constexpr QStringView FilePathKey = u"NSFilePath"; ///< QString, of the item that the error is about
inline constexpr QStringView URLKey = u"NSURL"; ///< QUrl of the same item, with the bytes of its name
inline constexpr QStringView SourceURLKey = u"NSSourceURL"; ///< QUrl
inline constexpr QStringView DestinationURLKey = u"NSDestinationURL"; ///< QUrl
inline constexpr QStringView UserStringVariantKey = u"NSUserStringVariant"; ///< a list; see Operation

enum class Operation {
    Change, ///< adds no variant
    Move, ///< "Move"
    Copy, ///< "Copy"
};

/// \a posixCode is an errno, which becomes the underlying error. The error is about the item at the
/// destination where its name is taken, else about the source.
ZEV_EXPORT ZEVError error(int posixCode, Operation operation, const QUrl &source,
                          const QUrl &destination = {});

/// The item that an error is about, with the bytes of its name; invalid where it is about none.
ZEV_EXPORT QUrl itemURL(const ZEVError &error);

/// \a error with another one beneath it: that of the repair which was tried because of it.
ZEV_EXPORT ZEVError withErrorBeneath(const ZEVError &error, const ZEVError &beneath);

/// What to tell the user of an error and of those beneath it, a line each.
ZEV_EXPORT QString fullDescription(const ZEVError &error);

/// The errno at the bottom of an error, or 0.
ZEV_EXPORT int posixCode(const ZEVError &error);

} // namespace ZEVFileErrors
