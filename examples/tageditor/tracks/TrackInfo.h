// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QCoreApplication>

/// What is known of a track beside its texts, in the order of the table's columns.
enum class TrackFact : int { Folder, Duration, BitRate, SampleRate, Channels, Format, Size, Modified };

inline constexpr int TrackFactCount = 8;

/// How the facts are told and ordered.
class TrackInfo {
    Q_DECLARE_TR_FUNCTIONS(TrackInfo)

public:
    TrackInfo() = delete;

    static QString title(TrackFact fact);

    /// For people; empty where it is not known.
    static QString text(const Track &track, TrackFact fact);

    /// Nil for facts that are texts.
    static std::optional<qint64> number(const Track &track, TrackFact fact);
};
