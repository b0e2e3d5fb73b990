// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TagReader.h>

#include <tageditor/tracks/TagFields.h>

#include <QSet>

#include <fileref.h>
#include <tag.h>

#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool hasAudio(const TagLib::File &file)
{
    return file.isValid() && file.tag() && file.audioProperties() && file.audioProperties()->sampleRate() > 0;
}

QString systemError(int code) { return QString::fromStdString(std::generic_category().message(code)); }

} // namespace

bool TagReader::isAudioFileName(const std::filesystem::path &path)
{
    static const QSet<QString> extensions{
        u".mp3"_s, u".flac"_s, u".ogg"_s,  u".oga"_s,  u".opus"_s, u".spx"_s, u".m4a"_s, u".m4b"_s, u".mp4"_s,
        u".wav"_s, u".aif"_s,  u".aiff"_s, u".aifc"_s, u".wv"_s,   u".ape"_s, u".mpc"_s, u".wma"_s, u".asf"_s,
    };
    return extensions.contains(displayedPath(path.extension()).toLower());
}

Track TagReader::read(const std::filesystem::path &path)
{
    Track track;
    setPath(track, path); // first, so that a change while it is read is noticed later
    track.error = lookAtFile(track);
    if (track.isReadable())
        track.error = readTags(track);
    return track;
}

OtherTags TagReader::readOthers(const std::filesystem::path &path)
{
    const TagLib::FileRef reference(path.c_str(), true, TagLib::AudioProperties::Fast);
    const TagLib::File *file = reference.file();
    return file && file->isValid() && file->tag() ? TagFields::readOthers(*file) : OtherTags();
}

void TagReader::setPath(Track &track, const std::filesystem::path &path)
{
    track.path = path;
    track.text(TrackField::FileName) = displayedPath(path.filename());
    track.stamp = FileStamp::of(path);
}

/// Takes the size down and tells what stands in the way of reading at all. Opening a pipe would wait for a
/// writer that may never come, so the file is opened without waiting and looked at first.
QString TagReader::lookAtFile(Track &track)
{
    const int file = ::open(track.path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0)
        return systemError(errno);
    struct stat status { };
    const int failure = ::fstat(file, &status) == 0 ? 0 : errno;
    ::close(file);
    if (failure != 0)
        return systemError(failure);
    if (!S_ISREG(status.st_mode))
        return tr("Not a regular file");
    track.fileSize = status.st_size;
    return track.fileSize == 0 ? tr("Empty file") : QString();
}

QString TagReader::readTags(Track &track)
{
    const TagLib::FileRef reference(track.path.c_str(), true, TagLib::AudioProperties::Fast);
    const TagLib::File *file = reference.file();
    if (!file || !hasAudio(*file))
        return tr("No audio found: damaged or cut off");
    TagFields::read(*file, track);
    const TagLib::AudioProperties &audio = *file->audioProperties();
    track.audio = {audio.lengthInMilliseconds(), audio.bitrate(), audio.sampleRate(), audio.channels()};
    return {};
}
