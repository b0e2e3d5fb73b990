// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVCountedCharacters_p.h>

#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using CleanedUnits = QVarLengthArray<char16_t, 256>;

CleanedUnits cleanedUnits(QStringView string)
{
    CleanedUnits units;
    ZEVCountedCharacters::forEachUnit(string, [&](char16_t unit, qsizetype) { units.append(unit); });
    return units;
}

/// The character at \a position with the accents that follow it.
ZEVRange rangeWithMarks(QStringView string, qsizetype position)
{
    qsizetype end = position + 1;
    if (string[position].isHighSurrogate())
        ++end; // only whole pairs are met
    while (end < string.size() && string[end].isMark())
        ++end;
    return {position, end - position};
}

void appendJoined(QList<ZEVRange> &ranges, const ZEVRange &range)
{
    if (ranges.isEmpty() || ranges.last().end() < range.location)
        ranges.append(range);
    else
        ranges.last().length = std::max(ranges.last().end(), range.end()) - ranges.last().location;
}

/// One UTF-16 unit of the abbreviation, and the forms of it that are looked for.
struct Letter {
    explicit Letter(QChar unit)
        : lower(QString(unit).toLower())
        , upper(QString(unit).toUpper())
        , exact(unit)
        , isPlain(lower.size() == 1 && upper.size() == 1)
    {
    }

    qsizetype positionIn(QStringView text) const;

    QString lower;
    QString upper;
    QChar exact;
    bool isPlain; ///< both forms are single units
};

/// The first place of either form, -1 for none. Both are looked for in one pass, so that a long text in which
/// one of them is rare is not read to its end for every letter.
qsizetype Letter::positionIn(QStringView text) const
{
    const auto isEither = [first = lower.front(), second = upper.front()](QChar unit) {
        return unit == first || unit == second;
    };
    if (isPlain) {
        const auto found = std::ranges::find_if(text, isEither);
        return found == text.end() ? -1 : found - text.begin();
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QStringView rest = text.sliced(i);
        if (rest.startsWith(lower) || rest.startsWith(upper))
            return i;
    }
    return -1;
}

/// What has been counted on the way through a text, and what of the text remains.
class Tally {
public:
    explicit Tally(QStringView text)
        : m_remaining(text)
    {
    }

    qsizetype positionOf(const Letter &letter) const
    {
        return m_missing.contains(letter.exact) ? -1 : letter.positionIn(m_remaining);
    }

    void meet(const Letter &letter, qsizetype position, bool isFirstLetter);
    void miss(const Letter &letter, float fuzziness);

    double total = 0;
    double fuzzies = 1;
    bool startBonus = false;

private:
    QStringView m_remaining;
    QVarLengthArray<QChar, 16> m_missing; // what the remaining text lacks it lacks for good
};

void Tally::meet(const Letter &letter, qsizetype position, bool isFirstLetter)
{
    double score = m_remaining[position] == letter.exact ? 0.2 : 0.1;
    if (position == 0)
        score += 0.6;
    else if (m_remaining[position - 1] == u' ')
        score += 0.8;
    startBonus = startBonus || (position == 0 && isFirstLetter);
    total += score;
    m_remaining = m_remaining.sliced(position + 1);
}

void Tally::miss(const Letter &letter, float fuzziness)
{
    fuzzies += double(1.0F - fuzziness);
    total += 0.1;
    if (!m_missing.contains(letter.exact))
        m_missing.append(letter.exact);
}

/// Scores are never NaN, so "greater" is a strict weak ordering, and stability keeps the given order.
template <typename Score>
QList<ZEVStringScorer::Ranked> rankedBy(qsizetype count, Score score)
{
    QList<ZEVStringScorer::Ranked> ranked;
    ranked.reserve(count);
    for (qsizetype i = 0; i < count; ++i)
        ranked.append({i, score(i)});
    std::ranges::stable_sort(ranked, std::ranges::greater(), &ZEVStringScorer::Ranked::score);
    return ranked;
}

} // namespace

struct ZEVStringScorer::Private {
    template <typename Met>
    double scoreMeeting(QStringView cleaned, Met met) const;
    double finalScore(const Tally &tally, qsizetype length) const;

    QString abbreviation; // cleaned
    std::vector<Letter> letters; // one for each UTF-16 unit of it
    std::optional<float> fuzziness;
    ZEVStringScore::Options options;
};

/// Calls \a met with the place of each unit of \a cleaned that the abbreviation meets.
template <typename Met>
double ZEVStringScorer::Private::scoreMeeting(QStringView cleaned, Met met) const
{
    if (cleaned == abbreviation) {
        for (qsizetype i = 0; i < cleaned.size(); ++i)
            met(i);
        return 1;
    }
    if (letters.empty() || cleaned.isEmpty())
        return 0;
    Tally tally(cleaned);
    qsizetype begin = 0; // of what remains
    for (const Letter &letter : letters) {
        if (const qsizetype position = tally.positionOf(letter); position >= 0) {
            tally.meet(letter, position, &letter == &letters.front());
            met(begin + position);
            begin += position + 1;
        } else if (fuzziness) {
            tally.miss(letter, *fuzziness);
        } else {
            return 0;
        }
    }
    return finalScore(tally, cleaned.size());
}

double ZEVStringScorer::Private::finalScore(const Tally &tally, qsizetype length) const
{
    if (options.testFlag(ZEVStringScore::FavourSmallerWords))
        return tally.total / double(length);
    const auto ownLength = qsizetype(letters.size());
    const double abbreviationScore = tally.total / double(ownLength);
    const bool reduced = options.testFlag(ZEVStringScore::ReducedLongStringPenalty);
    const qsizetype quotient = ownLength / length;
    const double ratio = reduced ? double(quotient) : double(ownLength) / double(length);
    double score = (ratio * abbreviationScore + abbreviationScore) * 0.5 / tally.fuzzies;
    if (tally.startBonus && score + 0.15 < 1)
        score += 0.15;
    return std::isnan(score) ? 0 : score;
}

ZEVStringScorer::ZEVStringScorer(QStringView abbreviation, std::optional<float> fuzziness,
                                 ZEVStringScore::Options options)
{
    const QString cleaned = cleanedString(abbreviation);
    d = std::make_shared<const Private>(
        Private{cleaned, std::vector<Letter>(cleaned.begin(), cleaned.end()), fuzziness, options});
}

double ZEVStringScorer::score(QStringView string) const
{
    const CleanedUnits units = cleanedUnits(string);
    return scoreOfCleaned(QStringView(units.data(), units.size()));
}

double ZEVStringScorer::scoreOfCleaned(QStringView cleaned) const
{
    return d->scoreMeeting(cleaned, [](qsizetype) {});
}

ZEVStringScorer::Match ZEVStringScorer::match(QStringView string) const
{
    CleanedUnits units;
    QVarLengthArray<qsizetype, 256> positions;
    ZEVCountedCharacters::forEachUnit(string, [&](char16_t unit, qsizetype position) {
        units.append(unit);
        positions.append(position);
    });
    Match match;
    match.score = d->scoreMeeting(QStringView(units.data(), units.size()), [&](qsizetype i) {
        appendJoined(match.ranges, rangeWithMarks(string, positions[i]));
    });
    if (match.score == 0)
        match.ranges.clear();
    return match;
}

QList<ZEVStringScorer::Ranked> ZEVStringScorer::ranking(const QStringList &candidates) const
{
    return rankedBy(candidates.size(), [&](qsizetype i) { return score(candidates[i]); });
}

QList<ZEVStringScorer::Ranked> ZEVStringScorer::rankingOfCleaned(const QStringList &cleaned) const
{
    return rankedBy(cleaned.size(), [&](qsizetype i) { return scoreOfCleaned(cleaned[i]); });
}

QString ZEVStringScorer::cleanedString(QStringView string)
{
    const CleanedUnits units = cleanedUnits(string);
    return QString(reinterpret_cast<const QChar *>(units.data()), units.size());
}
