// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/FileStamp.h>

#include <QHash>
#include <QList>
#include <QString>

#include <array>
#include <filesystem>

/// The fields of a track, in the order of the table's columns.
enum class TrackField : int {
    FileName,
    Title,
    Artist,
    Album,
    Year,
    Number,
    Genre,
    Comment,
    AlbumArtist,
    Composer,
    TrackTotal, ///< how many tracks the disc has
    Disc,
    DiscTotal,
};

inline constexpr int TrackFieldCount = 13;

/// Those of a number or date, which have no spaces around them.
constexpr bool isNumber(TrackField field)
{
    return field == TrackField::Year || field == TrackField::Number || field >= TrackField::TrackTotal;
}

/// Where it says how many there are; nil for what is not counted.
constexpr std::optional<TrackField> totalOf(TrackField field)
{
    if (field == TrackField::Number)
        return TrackField::TrackTotal;
    return field == TrackField::Disc ? std::optional(TrackField::DiscTotal) : std::nullopt;
}

inline size_t qHash(TrackField field, size_t seed = 0) { return ::qHash(int(field), seed); }

/// How the sound of a file is stored; zero is not known.
struct AudioFacts {
    int milliseconds = 0;
    int bitRate = 0; ///< kbit/s
    int sampleRate = 0; ///< Hz
    int channels = 0;
};

/// One audio file as it was read, and as its texts were changed since.
struct Track {
    std::filesystem::path path; ///< the file system's own bytes, which need not be UTF-8
    std::array<QString, TrackFieldCount>
        fields; ///< empty where the file says nothing; see TagValues for several
    AudioFacts audio;
    qint64 fileSize = 0; ///< bytes
    std::optional<FileStamp> stamp; ///< of the file as it was read; nil where there was none
    QString error; ///< why the tags could not be read; empty when they were

    const QString &text(TrackField field) const { return fields.at(size_t(field)); }
    QString &text(TrackField field) { return fields.at(size_t(field)); }
    bool isReadable() const { return error.isEmpty(); }

    /// Given by the table, and by no other: names the track wherever it is sorted to.
    int id = -1;
};

/// A file's name or path for people: what is no UTF-8 in it shows as U+FFFD.
QString displayedPath(const std::filesystem::path &path);
