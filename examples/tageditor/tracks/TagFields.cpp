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

#include <array>

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

/// The names that the map of properties has for a field, the usual one first. Of a total, every kind of tag may
/// have the other one; of the rest, Vorbis comments only.
struct Keys {
    const char *usual = nullptr;
    const char *other = nullptr;
};

constexpr std::array<Keys, TrackFieldCount> KeysOfFields{{
    {}, // the file's name is no tag
    {"TITLE"},
    {"ARTIST"},
    {"ALBUM"},
    {"DATE", "YEAR"},
    {"TRACKNUMBER", "TRACKNUM"},
    {"GENRE"},
    {"COMMENT", "DESCRIPTION"},
    {"ALBUMARTIST", "ALBUM ARTIST"},
    {"COMPOSER"},
    {"TRACKTOTAL", "TOTALTRACKS"},
    {"DISCNUMBER"},
    {"DISCTOTAL", "TOTALDISCS"},
}};

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
    default:
        return {};
    }
}

bool isTotal(TrackField field) { return field == TrackField::TrackTotal || field == TrackField::DiscTotal; }

/// The key under which the file has the field; where both are there, the comment's other name comes first.
const char *keyInUse(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField field)
{
    const auto &[usual, other] = KeysOfFields.at(size_t(field));
    const bool mayBeOther =
        other && (isTotal(field) || hasVorbisComments(file)) && properties.contains(other);
    return mayBeOther && (field == TrackField::Comment || !properties.contains(usual)) ? other : usual;
}

/// As the tag has it, where "7/12" may stand for a number and its total.
QString wholeText(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField field)
{
    const char *used = keyInUse(file, properties, field);
    if (!properties.contains(used))
        return plainText(*file.tag(), field);
    const bool mayRepeat = field == TrackField::Comment;
    return text(mayRepeat ? CommentFrames::distinct(properties[used]) : properties[used]);
}

QString readField(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField field)
{
    QString found = wholeText(file, properties, field);
    if (totalOf(field))
        found = found.section(u'/', 0, 0);
    return isNumber(field) && found == u"0"_s ? QString() : found;
}

/// Where the total stands behind its number.
QString readTotal(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField number)
{
    const QString total = readField(file, properties, *totalOf(number));
    return total.isEmpty() ? wholeText(file, properties, number).section(u'/', 1) : total;
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

/// A number and its total may be one text, of which the other part stays.
QStringList withOtherPart(const TagLib::File &file, const TagLib::PropertyMap &properties, TrackField number,
                          const QStringList &values)
{
    const QString total = wholeText(file, properties, number).section(u'/', 1);
    return total.isEmpty() ? values : QStringList(values.value(0) + u'/' + total);
}

TagLib::StringList tagTexts(const QStringList &values)
{
    TagLib::StringList list;
    for (const QString &value : values)
        list.append(tagText(value));
    return values == QStringList(QString()) ? TagLib::StringList() : list;
}

/// Into its number's text, where it has no place of its own.
bool writeTotal(TagLib::File &file, const TagLib::PropertyMap &properties, TrackField number,
                const QString &total)
{
    const QString whole = wholeText(file, properties, number);
    const char *own = keyInUse(file, properties, *totalOf(number));
    const bool isApart = properties.contains(own) || (hasVorbisComments(file) && !whole.contains(u'/'));
    if (isApart)
        return false;
    const QString text = whole.section(u'/', 0, 0) + (total.isEmpty() ? QString() : u'/' + total);
    replaceIn(file, keyInUse(file, properties, number), tagTexts({text}));
    return true;
}

} // namespace

void TagFields::read(const TagLib::File &file, Track &track)
{
    const TagLib::PropertyMap properties = file.properties();
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field)
        track.text(TrackField(field)) = readField(file, properties, TrackField(field));
    for (const TrackField number : {TrackField::Number, TrackField::Disc})
        track.text(*totalOf(number)) = readTotal(file, properties, number);
}

void TagFields::write(TagLib::File &file, TrackField field, const QStringList &values)
{
    if (field == TrackField::FileName)
        return;
    const TagLib::PropertyMap properties = file.properties();
    for (const TrackField number : {TrackField::Number, TrackField::Disc}) {
        if (field == totalOf(number) && writeTotal(file, properties, number, values.value(0)))
            return;
    }
    const TagLib::StringList list =
        tagTexts(totalOf(field) ? withOtherPart(file, properties, field, values) : values);
    if (field == TrackField::Comment && list.size() < 2 && isDescribedComment(file, properties))
        return file.tag()->setComment(list.toString());
    replaceIn(file, keyInUse(file, properties, field), list);
}

OtherTags TagFields::readOthers(const TagLib::File &file)
{
    TagLib::PropertyMap properties = file.properties();
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field) {
        properties.erase(KeysOfFields.at(size_t(field)).usual);
        properties.erase(keyInUse(file, file.properties(), TrackField(field)));
    }
    OtherTags tags;
    for (const auto &[key, values] : properties)
        tags.insert(text(key), text(values));
    return tags;
}

void TagFields::writeOther(TagLib::File &file, const QString &key, const QStringList &values)
{
    replaceIn(file, key.toStdString().c_str(), tagTexts(values));
}
