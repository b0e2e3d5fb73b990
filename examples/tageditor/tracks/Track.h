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
enum class TrackField : int { FileName, Title, Artist, Album, Year, Number, Genre, Comment };

inline constexpr int TrackFieldCount = 8;

inline size_t qHash(TrackField field, size_t seed = 0) { return ::qHash(int(field), seed); }

/// One audio file as it was read, and as its texts were changed since.
struct Track {
    std::filesystem::path path; ///< the file system's own bytes, which need not be UTF-8
    std::array<QString, TrackFieldCount>
        fields; ///< empty where the file says nothing; see TagValues for several
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
