// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

// 100,000 candidates scored at each press of a key, beside the steps of the score written down one after the
// other on QString.

#include "MusicTitles.h"
#include "ProcessorTime.h"

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

#include <benchmark/benchmark.h>

namespace {

QString plainCleaned(const QString &string)
{
    QString cleaned;
    const QString decomposed = string.normalized(QString::NormalizationForm_D);
    for (const QChar character : decomposed) {
        if (character.category() == QChar::Letter_Lowercase || character.category() == QChar::Letter_Uppercase
            || character == u' ')
            cleaned += character;
    }
    return cleaned;
}

/// The peer; the texts of this benchmark have no letters beyond the BMP.
double plainScore(const QString &text, const QString &typed, float fuzziness)
{
    const QString string = plainCleaned(text);
    const QString abbreviation = plainCleaned(typed);
    if (string == abbreviation)
        return 1;
    if (abbreviation.isEmpty() || string.isEmpty())
        return 0;
    double total = 0;
    double fuzzies = 1;
    bool startBonus = false;
    QString remaining = string;
    for (qsizetype i = 0; i < abbreviation.size(); ++i) {
        const QString character = abbreviation.mid(i, 1);
        const qsizetype lower = remaining.indexOf(character.toLower());
        const qsizetype upper = remaining.indexOf(character.toUpper());
        if (lower < 0 && upper < 0) {
            fuzzies += double(1.0F - fuzziness);
            total += 0.1;
            continue;
        }
        const qsizetype position = lower < 0 || upper < 0 ? std::max(lower, upper) : std::min(lower, upper);
        double score = remaining[position] == abbreviation[i] ? 0.2 : 0.1;
        if (position == 0) {
            score += 0.6;
            startBonus = startBonus || i == 0;
        } else if (remaining[position - 1] == u' ') {
            score += 0.8;
        }
        remaining = remaining.mid(position + 1);
        total += score;
    }
    const double abbreviationScore = total / double(abbreviation.size());
    const double ratio = double(abbreviation.size()) / double(string.size());
    const double score = (ratio * abbreviationScore + abbreviationScore) * 0.5 / fuzzies;
    return startBonus && score + 0.15 < 1 ? score + 0.15 : score;
}

constexpr float Fuzziness = 0.5F;

/// What one key press costs, each way.
struct Costs {
    double ours = 0;
    double cleaned = 0;
    double peer = 0;
    bool areTheSame = true;
};

void pressKey(const QString &typed, const QStringList &titles, const QStringList &cleaned, Costs &costs)
{
    std::vector<double> ours(std::size_t(titles.size()));
    std::vector<double> ofCleaned(ours.size());
    std::vector<double> peer(ours.size());
    costs.ours += processorSecondsFor([&] {
        const ZEVStringScorer scorer(typed, Fuzziness);
        for (std::size_t i = 0; i < ours.size(); ++i)
            ours[i] = scorer.score(titles[qsizetype(i)]);
    });
    costs.cleaned += processorSecondsFor([&] {
        const ZEVStringScorer scorer(typed, Fuzziness);
        for (std::size_t i = 0; i < ours.size(); ++i)
            ofCleaned[i] = scorer.scoreOfCleaned(cleaned[qsizetype(i)]);
    });
    costs.peer += processorSecondsFor([&] {
        for (std::size_t i = 0; i < ours.size(); ++i)
            peer[i] = plainScore(titles[qsizetype(i)], typed, Fuzziness);
    });
    costs.areTheSame = costs.areTheSame && ours == peer && ofCleaned == peer;
}

void scorePerKeyPress(benchmark::State &state)
{
    static const QStringList titles = benchTitles(100'000);
    static const QStringList cleaned = [] {
        QStringList list;
        for (const QString &title : titles)
            list.append(ZEVStringScorer::cleanedString(title));
        return list;
    }();
    const QString query = QStringLiteral("Étsnight");
    Costs costs;
    for ([[maybe_unused]] auto _ : state) {
        const double before = costs.ours;
        for (qsizetype length = 1; length <= query.size(); ++length)
            pressKey(query.first(length), titles, cleaned, costs);
        state.SetIterationTime((costs.ours - before) / double(query.size()));
    }
    if (!costs.areTheSame)
        state.SkipWithError("the scores differ");
    state.counters["peer_over_ours"] = costs.peer / costs.ours;
    state.counters["peer_over_cleaned_once"] = costs.peer / costs.cleaned;
}

} // namespace

BENCHMARK(scorePerKeyPress)->UseManualTime()->Iterations(1)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
