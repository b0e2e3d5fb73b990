// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/CommentFrames.h>

#include <commentsframe.h>
#include <id3v2tag.h>
#include <textidentificationframe.h>
#include <tpropertymap.h>

#include <utility>
#include <vector>

namespace {

using Note = TagLib::ID3v2::UserTextIdentificationFrame;
using Change = std::pair<TagLib::String, TagLib::StringList>; ///< a text, and the one in its place or none

/// The other kind has one text for each language and description.
std::vector<TagLib::ID3v2::CommentsFrame *> comments(const TagLib::ID3v2::Tag &tag)
{
    std::vector<TagLib::ID3v2::CommentsFrame *> comments;
    for (TagLib::ID3v2::Frame *frame : tag.frameList("COMM")) {
        auto *comment = dynamic_cast<TagLib::ID3v2::CommentsFrame *>(frame);
        if (comment && (comment->description().isEmpty() || comment->description().upper() == "COMMENT"))
            comments.push_back(comment);
    }
    return comments;
}

std::vector<Note *> notes(const TagLib::ID3v2::Tag &tag)
{
    std::vector<Note *> notes;
    for (TagLib::ID3v2::Frame *frame : tag.frameList("TXXX")) {
        auto *note = dynamic_cast<Note *>(frame);
        if (note && note->description().upper() == "COMMENT")
            notes.push_back(note);
    }
    return notes;
}

TagLib::StringList texts(const Note &note)
{
    TagLib::StringList texts = note.fieldList();
    texts.erase(texts.begin()); // the description
    return texts;
}

/// What each of \a before becomes; what is left of \a after is new. Where there are fewer, those go whose
/// texts are not wanted any more.
std::vector<Change> changes(const TagLib::StringList &before, TagLib::StringList &after)
{
    std::vector<Change> changes;
    unsigned surplus = before.size() - std::min(before.size(), after.size());
    for (const TagLib::String &text : before) {
        const bool goes = after.isEmpty() || (surplus > 0 && !after.contains(text));
        changes.push_back({text, goes ? TagLib::StringList() : TagLib::StringList(after.front())});
        surplus -= goes && surplus > 0 ? 1 : 0;
        if (!goes)
            after.erase(after.begin());
    }
    return changes;
}

TagLib::StringList changed(const TagLib::StringList &texts, const std::vector<Change> &changes)
{
    TagLib::StringList result;
    for (const TagLib::String &text : texts) {
        for (const auto &[before, after] : changes) {
            if (before == text)
                result.append(after);
        }
    }
    return result;
}

void change(TagLib::ID3v2::Tag &tag, const std::vector<Change> &changes)
{
    for (TagLib::ID3v2::CommentsFrame *comment : comments(tag)) {
        const TagLib::StringList after = changed(comment->text(), changes);
        if (after.isEmpty())
            tag.removeFrame(comment);
        else
            comment->setText(after.front());
    }
    for (Note *note : notes(tag)) {
        const TagLib::StringList after = changed(texts(*note), changes);
        if (after.isEmpty())
            tag.removeFrame(note);
        else
            note->setText(after);
    }
}

} // namespace

TagLib::StringList CommentFrames::distinct(const TagLib::StringList &values)
{
    TagLib::StringList distinct;
    for (const TagLib::String &value : values) {
        if (!distinct.contains(value))
            distinct.append(value);
    }
    return distinct;
}

void CommentFrames::replace(TagLib::ID3v2::Tag &tag, const TagLib::StringList &values)
{
    TagLib::StringList others = values;
    const std::vector<Change> steps = changes(distinct(tag.properties()["COMMENT"]), others);
    change(tag, steps);
    if (others.isEmpty())
        return;
    if (const std::vector<Note *> more = notes(tag); !more.empty()) {
        others = texts(*more.front()).append(others);
        tag.removeFrame(more.front());
    }
    tag.addFrame(TagLib::ID3v2::Frame::createTextualFrame("COMMENT", others));
}
