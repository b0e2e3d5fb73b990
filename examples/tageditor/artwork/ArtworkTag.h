// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <filesystem>

namespace TagLib {
class File;
}

/// The artwork of an audio file: its front cover or, in files that have none, a picture of no kind. Other
/// pictures, a back cover and the like, are left alone. Any thread.
namespace ArtworkTag {

/// The encoded bytes as they stand in the tags; empty for none.
QByteArray artwork(TagLib::File &file);

/// Empty bytes remove the artwork. False when the file's tags hold no pictures.
bool setArtwork(TagLib::File &file, const QByteArray &bytes);

/// The artwork of a file on disk; empty, too, when it cannot be read.
QByteArray read(const std::filesystem::path &path);

} // namespace ArtworkTag
