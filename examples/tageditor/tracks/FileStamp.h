// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <filesystem>
#include <optional>

/// How a file can be told from what another program has made of it since.
struct FileStamp {
    qint64 size = 0; ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970
    quint64 inode = 0; ///< another one when a new file has taken the old one's place

    /// Nil where there is no file, or none that may be looked at.
    static std::optional<FileStamp> of(const std::filesystem::path &path);

    friend bool operator==(const FileStamp &, const FileStamp &) = default;
};
