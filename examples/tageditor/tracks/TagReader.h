// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TagChanges.h>

#include <QCoreApplication>

/// Reads tags of MP3, FLAC, Ogg (Vorbis, Opus, Speex), MPEG-4, WAV, AIFF, WavPack, Monkey's Audio, Musepack and
/// Windows Media audio files. Any thread.
class TagReader {
    Q_DECLARE_TR_FUNCTIONS(TagReader)

public:
    TagReader() = delete;

    /// Whether the name of \a path says that it is one of these kinds.
    static bool isAudioFileName(const std::filesystem::path &path);

    /// Every field of the file, or its name and the reason why there is no more.
    static Track read(const std::filesystem::path &path);

    /// Of a file that can be read, the tags that are no fields.
    static OtherTags readOthers(const std::filesystem::path &path);

    /// What was read of \a track is now in a file of another name, or in a new one of that name.
    static void setPath(Track &track, const std::filesystem::path &path);

private:
    static QString lookAtFile(Track &track);
    static QString readTags(Track &track);
};
