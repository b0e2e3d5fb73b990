// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QByteArray>
#include <QStringList>

/// Names for files made of their tags. A pattern is text with placeholders, such as "%track% - %title%"; a
/// literal percent sign is doubled, and whatever is no placeholder is literal text.
namespace FileNamePattern {

/// As they stand in a pattern.
QStringList placeholders();

/// The file's new name, with its extension; empty where the tags leave nothing of the pattern. A "/" becomes
/// "-", track numbers have two digits at least, no name begins with a dot or is longer than 255 bytes, and
/// what separates an empty tag from the rest goes with it.
QByteArray fileName(const QString &pattern, const Track &track);

} // namespace FileNamePattern
