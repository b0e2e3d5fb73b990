// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QCoreApplication>
#include <QHash>

#include <optional>

/// Writes texts into the tags of audio files. Any thread.
class TagWriter {
    Q_DECLARE_TR_FUNCTIONS(TagWriter)

public:
    TagWriter() = delete;

    using Texts = QHash<TrackField, QString>;

    using Artwork = std::optional<QByteArray>;

    /// Writes \a texts of the file's tags and, unless it is nil, the artwork (empty bytes remove it), and
    /// nothing else of it. A new file takes the old one's place when
    /// it is whole and has been read back; whatever fails, the old one stays as it was. A link's target is
    /// written. In a folder that takes no other file, the file itself is written over. Returns why it failed, or an empty text.
    static QString write(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork = {});

private:
    static QString replace(const QUrl &original, const Texts &texts, const Artwork &artwork);
    static QString overwrite(const QUrl &original, const Texts &texts, const Artwork &artwork);
    static QString writeInto(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork);
    static QString readBack(const std::filesystem::path &path, const Texts &texts, const Artwork &artwork);
};
