// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <vector>

/// Finds the audio files in a folder and below it, by their names. Symbolic links to folders are not followed,
/// and what is hidden is left out. Any thread.
struct FolderListing {
    std::function<bool()> isStopped; ///< asked between two files
    std::function<void(const std::filesystem::path &folder, const std::error_code &error)>
        skipped; ///< one within

    /// The files in no order. An error is that of \a folder itself.
    std::error_code list(const std::filesystem::path &folder,
                         std::vector<std::filesystem::path> &files) const;
};
