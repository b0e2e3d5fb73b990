// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <QByteArray>

/// Why an operation on files failed, and which item is to blame.
struct ZEVFileFailure {
    enum class Reason {
        System, ///< the code says it of the item that was asked for
        Folder, ///< the same of a folder that was to be changed
        Within, ///< the same of an item in the one that was asked for
        Removal, ///< may not be removed
        IntoItself, ///< a folder that was to come into itself
        Ancestor, ///< an item that was to take the place of a folder around it
        Name, ///< one that the volume does not take
        Clash, ///< two names of a folder that the volume takes for one
        Attributes, ///< more than the volume keeps of an item
        Kind, ///< neither file, folder, link nor pipe
        NotHeld, ///< a link or pipe, which the volume does not have
        Readable, ///< others could read the copy, who cannot read the source
        Changed, ///< while it was moved
    };

    ZEVFileFailure(int posixCode = 0)
        : code(posixCode)
    {
    }
    ZEVFileFailure(int posixCode, Reason why, const QByteArray &item)
        : code(posixCode)
        , reason(why)
        , path(item)
    {
    }

    explicit operator bool() const { return code != 0; }

    int code; ///< an errno; 0 is success
    Reason reason = Reason::System;
    QByteArray path; ///< of the item to blame, for any other reason than System
};

namespace ZEVFileErrors {

/// Only what was asked for itself is a conflict or missing; what goes wrong with an item within never is.
ZEVError error(const ZEVFileFailure &failure, Operation operation, const QUrl &source,
               const QUrl &destination = {});

} // namespace ZEVFileErrors
