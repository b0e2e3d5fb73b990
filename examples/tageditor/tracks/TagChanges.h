// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QByteArray>
#include <QHash>
#include <QMap>

#include <optional>

/// The tags of a file that are no fields of a track, with all their values (see TagValues), by the names that
/// TagLib has for them in every format.
using OtherTags = QMap<QString, QString>;

/// What is to become of a file's tags; what is not named stays as it is.
struct TagChanges {
    QHash<TrackField, QString> texts;
    std::optional<QByteArray> artwork = std::nullopt; ///< nil where it stays, empty bytes to remove it
    OtherTags others = OtherTags(); ///< an empty text to remove it
};
