// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <random>
#include <vector>

/// A made-up music library: the same at every run, so that runs can be compared.
class MusicLibrary {
public:
    static std::vector<QString> pieces(qsizetype count)
    {
        MusicLibrary library;
        std::vector<QString> pieces;
        pieces.reserve(count);
        for (qsizetype i = 0; i < count; ++i)
            pieces.push_back(library.piece());
        return pieces;
    }

    /// Pieces as lines, cut off at just \a units.
    static QString text(qsizetype units)
    {
        MusicLibrary library;
        QString text;
        text.reserve(units + 256);
        while (text.size() < units)
            text += library.piece() + u'\n';
        text.truncate(units);
        return text;
    }

private:
    int upTo(int bound) { return int(m_random() % unsigned(bound)); }

    QString word()
    {
        static const char16_t *const words[]{
            u"love",     u"night",   u"the",   u"of",     u"and",    u"Blue",    u"river",
            u"Été",      u"dancing", u"heart", u"in",     u"word",   u"summer",  u"rain",
            u"München",  u"ночь",    u"song",  u"feat.",  u"light",  u"city",    u"dream",
            u"Wörd",     u"live",    u"remix", u"golden", u"東京の", u"over",    u"Strange",
            u"wordless", u"kiss",    u"kiß",   u"Straße", u"ſong",   u"İstanbul"};
        return QString::fromUtf16(words[upTo(int(std::size(words)))]);
    }

    QString title()
    {
        QString title = word();
        for (int words = 1 + upTo(5); words > 0; --words)
            title += u' ' + word();
        return title;
    }

    /// One field of one track: mostly titles and names, here and there a number or an address.
    QString piece()
    {
        const QString number = QString::number(1 + upTo(40));
        switch (upTo(20)) {
        case 0:
        case 1:
        case 2:
            return u"Track " + number;
        case 3:
            return u"track " + number + u" - " + title();
        case 4:
            return u"booking" + number + u"@example.org";
        case 5:
            return title() + u" http://www.example.com/" + number + u"/a_(b)?c=d";
        case 6:
            return QString::number(1950 + upTo(70));
        default:
            return title();
        }
    }

    std::mt19937 m_random{1};
};
