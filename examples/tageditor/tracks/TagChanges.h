// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QByteArray>
#include <QHash>

#include <optional>

/// What is to become of a file's tags; what is not named stays as it is.
struct TagChanges {
    QHash<TrackField, QString> texts;
    std::optional<QByteArray> artwork = std::nullopt; ///< nil where it stays, empty bytes to remove it
};
