// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

#include <vector>

/// Whether a track has all words of a typed text, each in some of its texts: as it stands or, letters left out,
/// as an abbreviation that fits well.
class TrackFilter {
public:
    explicit TrackFilter(const QString &typed);

    bool accepts(const Track &track) const;

private:
    struct Word {
        QString text;
        std::optional<ZEVStringScorer> scorer; ///< nil where there are no letters to score
    };

    static bool isIn(const Word &word, const QString &text);

    std::vector<Word> m_words;
};
