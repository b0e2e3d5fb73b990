// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QByteArray>
#include <QStringList>

/// Names for files made of their tags. A pattern is text with placeholders, such as "%track% - %title%", in
/// which case and spaces do not count; a literal percent sign is doubled, and whatever is no placeholder is
/// literal text. A "/" in it makes folders.
namespace FileNamePattern {

/// As they stand in a pattern.
QStringList placeholders();

/// What the names on a volume must do without.
enum class Rules {
    Unix, ///< "/"
    Windows, ///< what FAT, NTFS and shares of theirs forbid, too
};

/// Of the volume that \a folder is on.
Rules rulesIn(const QString &folder);

/// The file's new name, with its extension and, where the pattern has such, its folders; empty where the tags
/// leave nothing of the pattern. A character that is forbidden becomes "-", track numbers have two digits at
/// least, no name begins with a dot or is longer than 255 bytes, and what separates an empty tag from the rest
/// goes with it, and so does a folder that has only empty ones.
QByteArray fileName(const QString &pattern, const Track &track, Rules rules = Rules::Unix);

} // namespace FileNamePattern
