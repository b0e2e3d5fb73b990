// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <chrono>
#include <random>

/// Titles as collections have them: a few words each, small ones between, some with brackets, numerals,
/// guests, accents or another script. The same in every run.
inline QStringList benchTitles(qsizetype count)
{
    using namespace Qt::StringLiterals;
    static const QStringList words{
        u"love"_s,   u"night"_s,       u"the"_s,      u"of"_s,    u"dancing"_s,  u"HEART"_s,   u"in"_s,
        u"and"_s,    u"blue"_s,        u"river"_s,    u"don't"_s, u"a"_s,        u"morning"_s, u"Song"_s,
        u"for"_s,    u"you"_s,         u"symphony"_s, u"no."_s,   u"movement"_s, u"II"_s,      u"1st"_s,
        u"summer"_s, u"rock'n'roll"_s, u"to"_s,       u"café"_s,  u"été"_s,      u"Straße"_s,  u"with"_s,
        u"fire"_s,   u"dj"_s,          u"remember"_s, u"Mix"_s,   u"shadow:"_s,  u"at"_s,      u"paradise"_s,
        u"why?"_s,   u"la"_s,          u"vie"_s,      u"on"_s,    u"street"_s};
    static const QStringList endings{
        u" (live at the hall)"_s, u" [remastered 2011]"_s, u" feat. the others"_s,
        u" - single version"_s,   u" vol. II"_s,           u" 東京の夜"_s};
    std::mt19937 random(20260101); // NOLINT: the same in every run
    QStringList titles;
    titles.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        QStringList title;
        for (auto left = 2 + random() % 5; left > 0; --left)
            title.append(words[qsizetype(random() % std::size_t(words.size()))]);
        titles.append(title.join(u' '));
        if (random() % 4 == 0)
            titles.last() += endings[qsizetype(random() % std::size_t(endings.size()))];
    }
    return titles;
}

/// The time of one call, in seconds.
template <typename Work>
double secondsFor(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
