// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TrackFilter.h>

#include <algorithm>

namespace {

/// Below it the letters of a word are met here and there in any text.
constexpr double LeastScore = 0.45;

} // namespace

TrackFilter::TrackFilter(const QString &typed)
{
    for (const QString &word : typed.split(u' ', Qt::SkipEmptyParts)) {
        const bool hasLetters = !ZEVStringScorer::cleanedString(word).isEmpty();
        m_words.push_back(
            {word, hasLetters ? std::optional(ZEVStringScorer(word, std::nullopt)) : std::nullopt});
    }
}

bool TrackFilter::accepts(const Track &track) const
{
    return std::ranges::all_of(m_words, [&track](const Word &word) {
        return std::ranges::any_of(track.fields, [&word](const QString &text) { return isIn(word, text); });
    });
}

bool TrackFilter::isIn(const Word &word, const QString &text)
{
    return !text.isEmpty()
        && (text.contains(word.text, Qt::CaseInsensitive)
            || (word.scorer && word.scorer->score(text) >= LeastScore));
}
