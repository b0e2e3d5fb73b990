// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TagFields.h>

#include <tageditor/tracks/CommentFrames.h>
#include <tageditor/tracks/TagValues.h>

#include <apetag.h>
#include <flacfile.h>
#include <id3v1tag.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <oggfile.h>
#include <tag.h>
#include <tpropertymap.h>
#include <xiphcomment.h>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

QString text(const TagLib::String &string) { return QString::fromStdString(string.to8Bit(true)); }
TagLib::String tagText(const QString &text) { return {text.toStdString(), TagLib::String::UTF8}; }

/// Zero is how a tag says that it knows no number.
QString text(unsigned number) { return number == 0 ? QString() : QString::number(number); }

QString text(const TagLib::StringList &values)
{
    QStringList texts;
    for (const TagLib::String &value : values)
        texts.append(text(value));
    return TagValues::text(texts);
}

/// Vorbis comments have other names in use for some fields.
bool hasVorbisComments(const TagLib::File &file)
{
    return dynamic_cast<const TagLib::FLAC::File *>(&file) || dynamic_cast<const TagLib::Ogg::File *>(&file);
}

const char *key(TrackField field)
{
    switch (field) {
    case TrackField::Title:
        return "TITLE";
    case TrackField::Artist:
        return "ARTIST";
    case TrackField::Album:
        return "ALBUM";
    case TrackField::Year:
        return "DATE";
    case TrackField::Number:
        return "TRACKNUMBER";
    case TrackField::Genre:
        return "GENRE";
    case TrackField::Comment:
        return "COMMENT";
    case TrackField::FileName:
        break; // no text of a tag
    }
    return nullptr;
}

const char *vorbisAlias(TrackField field)
{
    switch (field) {
    case TrackField::Year:
        return "YEAR";
    case TrackField::Number:
        return "TRACKNUM";
    case TrackField::Comment:
        return "DESCRIPTION";
    default:
        return nullptr;
    }
}

/// What the map of properties has no values for may still stand in another tag of the file.
QString plainText(const TagLib::Tag &tag, TrackField field)
{
    switch (field) {
    case TrackField::Title:
        return text(tag.title());
    case TrackField::Artist:
        return text(tag.artist());
    case TrackField::Album:
        return text(tag.album());
    case TrackField::Year:
        return text(tag.year());
    case TrackField::Number:
        return text(tag.track());
    case TrackField::Genre:
        return text(tag.genre());
    case TrackField::Comment:
        return text(tag.comment());
    case TrackField::FileName:
        break;
    }
    return {};
}

/// The key under which the file has the field; where both are there, the comment's other name comes first.
const char *keyInUse(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField field)
{
    const char *alias = hasVorbisComments(file) ? vorbisAlias(field) : nullptr;
    const bool isAlias = alias && properties.contains(alias)
        && (field == TrackField::Comment || !properties.contains(key(field)));
    return isAlias ? alias : key(field);
}

QString readField(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField field)
{
    const char *used = keyInUse(file, properties, field);
    if (!properties.contains(used))
        return plainText(*file.tag(), field);
    const bool mayRepeat = field == TrackField::Comment;
    const QString found = text(mayRepeat ? CommentFrames::distinct(properties[used]) : properties[used]);
    return field == TrackField::Number && found == u"0"_s ? QString() : found;
}

/// Only what differs is touched: a tag leaves alone what its map has unchanged.
template <typename Tags>
void replace(Tags &tags, const char *key, const TagLib::StringList &values)
{
    TagLib::PropertyMap properties = tags.properties();
    if (values.isEmpty())
        properties.erase(key);
    else
        properties.replace(key, values);
    tags.setProperties(properties);
}

void replaceInMpeg(TagLib::MPEG::File &file, const char *key, const TagLib::StringList &values)
{
    if (key == "COMMENT"sv)
        CommentFrames::replace(*file.ID3v2Tag(true), values);
    else
        replace(*file.ID3v2Tag(true), key, values);
    if (file.hasAPETag())
        replace(*file.APETag(), key, values);
    if (file.hasID3v1Tag())
        replace(*file.ID3v1Tag(), key, values);
}

void replaceInFlac(TagLib::FLAC::File &file, const char *key, const TagLib::StringList &values)
{
    replace(*file.xiphComment(true), key, values);
    if (file.hasID3v2Tag())
        replace(*file.ID3v2Tag(), key, values);
    if (file.hasID3v1Tag())
        replace(*file.ID3v1Tag(), key, values);
}

void replaceIn(TagLib::File &file, const char *key, const TagLib::StringList &values)
{
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        replaceInMpeg(*mpeg, key, values);
    else if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file))
        replaceInFlac(*flac, key, values);
    else
        replace(file, key, values);
}

/// A comment with a description or language of its own, which has a key of its own in the map.
bool isDescribedComment(const TagLib::File &file, const TagLib::PropertyMap &properties)
{
    return !properties.contains("COMMENT") && !properties.contains("DESCRIPTION")
        && !file.tag()->comment().isEmpty();
}

} // namespace

void TagFields::read(const TagLib::File &file, Track &track)
{
    const TagLib::PropertyMap properties = file.properties();
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field)
        track.text(TrackField(field)) = readField(file, properties, TrackField(field));
}

void TagFields::write(TagLib::File &file, TrackField field, const QStringList &values)
{
    if (field == TrackField::FileName)
        return;
    TagLib::StringList list;
    if (values != QStringList(QString())) {
        for (const QString &value : values)
            list.append(tagText(value));
    }
    const TagLib::PropertyMap properties = file.properties();
    if (field == TrackField::Comment && list.size() < 2 && isDescribedComment(file, properties))
        return file.tag()->setComment(list.toString());
    replaceIn(file, keyInUse(file, properties, field), list);
}
