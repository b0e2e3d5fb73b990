// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TagChanges.h>

#include <QStringList>

namespace TagLib {
class File;
}

/// The fields of a track in the tags of an open file, which has such. Any thread.
namespace TagFields {

/// The texts of all fields of tags, each with all its values and as the file has it: a date stays a date. Of
/// "7/12" the total is a field of its own.
void read(const TagLib::File &file, Track &track);

/// Changes the field's values in every kind of tag that the file has. What a tag cannot hold shows when it is
/// read back.
void write(TagLib::File &file, TrackField field, const QStringList &values);

/// What else is in the tags.
OtherTags readOthers(const TagLib::File &file);
void writeOther(TagLib::File &file, const QString &key, const QStringList &values);

} // namespace TagFields
