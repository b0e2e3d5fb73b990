// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/FolderListing.h>

#include <tageditor/tracks/TagReader.h>

namespace fs = std::filesystem;

namespace {

/// The trash of a volume, where files are made or wait to be removed, and what other systems note beside each
/// file: nothing of the user's music.
bool isHidden(const fs::path &path) { return path.filename().native().starts_with('.'); }

void sort(const fs::directory_entry &entry, std::vector<fs::path> &folders, std::vector<fs::path> &files)
{
    if (isHidden(entry.path()))
        return;
    std::error_code ignored; // what has no type is left to the reader of tags, which says why
    if (fs::is_directory(entry.symlink_status(ignored)))
        folders.push_back(entry.path());
    else if (TagReader::isAudioFileName(entry.path()) && !entry.is_directory(ignored))
        files.push_back(entry.path());
}

} // namespace

std::error_code FolderListing::list(const fs::path &folder, std::vector<fs::path> &files) const
{
    std::vector<fs::path> folders{folder};
    while (!folders.empty() && !isStopped()) {
        const fs::path next = std::move(folders.back());
        folders.pop_back();
        std::error_code error;
        for (fs::directory_iterator entry(next, error), end; !error && entry != end && !isStopped();
             entry.increment(error))
            sort(*entry, folders, files);
        if (error && next == folder)
            return error;
        if (error && skipped)
            skipped(next, error);
    }
    return {};
}
