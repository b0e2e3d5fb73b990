// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TagChanges.h>

#include <QCoreApplication>

/// Writes into the tags of audio files. Any thread.
class TagWriter {
    Q_DECLARE_TR_FUNCTIONS(TagWriter)

public:
    TagWriter() = delete;

    /// Why it failed, or an empty text and the track as the file holds it now.
    struct Result {
        QString problem;
        Track track;
    };

    /// Writes \a changes and nothing else of the file. A new file takes the old one's place when it is whole
    /// and has been read back; whatever fails, the old one stays as it was. A link's target is written. In a
    /// folder that takes no other file, the file itself is written over.
    static Result write(const std::filesystem::path &path, const TagChanges &changes);

private:
    static Result replace(const QUrl &original, const TagChanges &changes);
    static Result overwrite(const QUrl &original, const TagChanges &changes);
    static Result writeInto(const std::filesystem::path &path, const TagChanges &changes);
    static Result readBack(const std::filesystem::path &path, const TagChanges &changes);
};
