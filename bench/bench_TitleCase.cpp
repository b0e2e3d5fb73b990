// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

// Title case of 1,000,000 titles beside a plain loop over ICU's word breaks with its title-casing of each
// word.

#include "MusicTitles.h"
#include "ProcessorTime.h"

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <benchmark/benchmark.h>
#include <unicode/brkiter.h>
#include <unicode/casemap.h>
#include <unicode/stringoptions.h>
#include <unicode/utext.h>

#include <algorithm>
#include <array>
#include <memory>

namespace {

/// The peer: one breaker for all titles, each word mapped into a buffer and appended.
class PlainTitleCase {
public:
    PlainTitleCase()
    {
        UErrorCode code = U_ZERO_ERROR;
        m_words.reset(icu::BreakIterator::createWordInstance(icu::Locale("en"), code));
    }

    QString titleCase(QStringView title)
    {
        UErrorCode code = U_ZERO_ERROR;
        UText text = UTEXT_INITIALIZER;
        utext_openUChars(&text, title.utf16(), title.size(), &code);
        m_words->setText(&text, code);
        QString result;
        result.reserve(title.size() + 16);
        int32_t begin = 0;
        for (int32_t end = m_words->next(); end != icu::BreakIterator::DONE; end = m_words->next()) {
            append(result, title.sliced(begin, end - begin),
                   m_words->getRuleStatus() >= UBRK_WORD_NONE_LIMIT);
            begin = end;
        }
        utext_close(&text);
        return result;
    }

private:
    static void append(QString &result, QStringView piece, bool isWord)
    {
        std::array<char16_t, 256> buffer{};
        UErrorCode code = U_ZERO_ERROR;
        const int32_t length = !isWord
            ? 0
            : icu::CaseMap::toTitle("", U_TITLECASE_WHOLE_STRING, nullptr, piece.utf16(),
                                    static_cast<int32_t>(piece.size()), buffer.data(), 256, nullptr, code);
        if (isWord && U_SUCCESS(code))
            result.append(QStringView(buffer.data(), length));
        else
            result.append(piece);
    }

    std::unique_ptr<icu::BreakIterator> m_words;
};

/// The two differ only in case.
bool areComparable(const QStringList &titles, PlainTitleCase &plain)
{
    return std::ranges::all_of(titles, [&](const QString &title) {
        const QString ours = ZEVStringTransforms::orvTitleCaseString(title);
        return ours.toCaseFolded() == plain.titleCase(title).toCaseFolded();
    });
}

void titleCase(benchmark::State &state)
{
    constexpr qsizetype Count = 1'000'000;
    constexpr qsizetype Turn = 1'000;
    static const QStringList titles = benchTitles(Count);
    PlainTitleCase plain;
    if (!areComparable(titles.first(20'000), plain)) {
        state.SkipWithError("the results differ in more than case");
        return;
    }
    double ours = 0;
    double peer = 0;
    for ([[maybe_unused]] auto _ : state) {
        double spent = 0;
        double tenth = 0;
        for (qsizetype begin = 0; begin < Count; begin += Turn) {
            const auto turn = QList<QString>(titles.sliced(begin, Turn));
            spent += processorSecondsFor([&] {
                for (const QString &title : turn)
                    benchmark::DoNotOptimize(ZEVStringTransforms::orvTitleCaseString(title));
            });
            if (begin + Turn == Count / 10)
                tenth = spent;
            peer += processorSecondsFor([&] {
                for (const QString &title : turn)
                    benchmark::DoNotOptimize(plain.titleCase(title));
            });
        }
        state.SetIterationTime(spent);
        ours += spent;
        state.counters["whole/tenth"] = spent / tenth;
    }
    state.counters["peer_over_ours"] = peer / ours;
}

} // namespace

BENCHMARK(titleCase)->UseManualTime()->Iterations(1)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
