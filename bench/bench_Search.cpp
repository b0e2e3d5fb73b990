// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "MusicLibrary.h"
#include "ProcessorTime.h"

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

#include <QRegularExpression>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <benchmark/benchmark.h>
#include <pcre2.h>
#include <unicode/regex.h>

#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Pieces = std::vector<QString>;

struct Search {
    QString pattern;
    bool insensitive;
};

/// Hands the pieces out in their order, remembering where it is.
class Client : public ZEVTextFinderClient {
public:
    explicit Client(const Pieces &pieces)
        : m_pieces(pieces)
    {
        for (const QString &piece : pieces)
            m_length += piece.size();
    }

    qsizetype stringLength() const override { return m_length; }

    QString stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const override
    {
        if (index == 0)
            m_next = 0;
        const QString &piece = m_pieces.at(m_next++);
        effectiveRange = {index, piece.size()};
        return piece;
    }

private:
    const Pieces &m_pieces;
    qsizetype m_length = 0;
    mutable size_t m_next = 0;
};

ZEVRegularExpression compiled(const Search &search)
{
    return *ZEVRegularExpression::compile(search.pattern,
                                          search.insensitive ? ZEVRegularExpression::CaseInsensitive
                                                             : ZEVRegularExpression::NoOptions);
}

/// The whole way: a client asked for its pieces, every match collected and announced.
qsizetype countOfFinder(const Search &search, const Pieces &pieces)
{
    Client client(pieces);
    ZEVTextFinder finder;
    finder.setClient(&client);
    finder.performSearchAgainstExpression(compiled(search));
    return finder.limitReached() ? -1 : finder.foundMatches().size();
}

/// And with an observer, who hears of every match.
qsizetype countOfLiveSearch(const Search &search, const Pieces &pieces)
{
    Client client(pieces);
    ZEVTextFinder finder;
    qsizetype heard = 0;
    QObject::connect(&finder, &ZEVTextFinder::numberOfMatchesChanged,
                     [&] { heard = finder.numberOfMatches().value_or(0); });
    finder.setClient(&client);
    finder.performSearchAgainstExpression(compiled(search));
    return finder.limitReached() ? -1 : heard;
}

/// Only the matching and collecting.
qsizetype countOfMatcher(const Search &search, const Pieces &pieces)
{
    ZEVRegularExpressionMatcher matcher(compiled(search));
    QList<ZEVRange> found;
    qsizetype offset = 0;
    for (const QString &piece : pieces) {
        matcher.setText(piece);
        while (matcher.findSome(found, offset)) { }
        offset += piece.size();
    }
    return matcher.limitReached() ? -1 : found.size();
}

/// The bare engine: one matcher for all the pieces, the ranges collected, no limit of time.
qsizetype countOfIcu(const Search &search, const Pieces &pieces)
{
    UErrorCode code = U_ZERO_ERROR;
    const icu::UnicodeString pattern(false, search.pattern.utf16(), int32_t(search.pattern.size()));
    icu::RegexMatcher matcher(pattern, search.insensitive ? UREGEX_CASE_INSENSITIVE : 0, code);
    QList<ZEVRange> found;
    UText text = UTEXT_INITIALIZER;
    qsizetype offset = 0;
    for (const QString &piece : pieces) {
        utext_openUChars(&text, reinterpret_cast<const UChar *>(piece.utf16()), piece.size(), &code);
        matcher.reset(&text);
        while (matcher.find(code)) {
            const qint64 start = matcher.start64(code);
            found.append({offset + qsizetype(start), qsizetype(matcher.end64(code) - start)});
        }
        offset += piece.size();
    }
    utext_close(&text);
    return U_SUCCESS(code) ? found.size() : -1;
}

qsizetype countOfQt(const Search &search, const Pieces &pieces)
{
    QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
    options.setFlag(QRegularExpression::CaseInsensitiveOption, search.insensitive);
    const QRegularExpression expression(search.pattern, options);
    QList<ZEVRange> found;
    qsizetype offset = 0;
    for (const QString &piece : pieces) {
        for (auto matches = expression.globalMatch(piece); matches.hasNext();) {
            const auto match = matches.next();
            found.append({offset + match.capturedStart(), match.capturedLength()});
        }
        offset += piece.size();
    }
    return found.size();
}

/// PCRE2 as it is, compiled to machine code, with Unicode's properties as ICU has them.
qsizetype countOfJit(const Search &search, const Pieces &pieces)
{
    int error = 0;
    PCRE2_SIZE place = 0;
    pcre2_code *code = pcre2_compile(
        reinterpret_cast<PCRE2_SPTR>(search.pattern.utf16()), PCRE2_SIZE(search.pattern.size()),
        PCRE2_UTF | PCRE2_UCP | (search.insensitive ? PCRE2_CASELESS : 0), &error, &place, nullptr);
    if (!code || pcre2_jit_compile(code, PCRE2_JIT_COMPLETE) != 0)
        return -1;
    pcre2_match_data *match = pcre2_match_data_create_from_pattern(code, nullptr);
    const PCRE2_SIZE *ends = pcre2_get_ovector_pointer(match);
    QList<ZEVRange> found;
    qsizetype offset = 0;
    for (const QString &piece : pieces) {
        const auto *text = reinterpret_cast<PCRE2_SPTR>(piece.utf16());
        for (PCRE2_SIZE from = 0;
             pcre2_jit_match(code, text, PCRE2_SIZE(piece.size()), from, 0, match, nullptr) > 0;
             from = ends[1])
            found.append({offset + qsizetype(ends[0]), qsizetype(ends[1] - ends[0])});
        offset += piece.size();
    }
    pcre2_match_data_free(match);
    pcre2_code_free(code);
    return found.size();
}

/// What runs and how: ours, and the peers beside which its time is told.
struct Runner {
    const char *name;
    qsizetype (*count)(const Search &, const Pieces &);
};

constexpr std::array<Runner, 6> Runners{{
    {"finder", countOfFinder},
    {"matcher", countOfMatcher},
    {"icu", countOfIcu},
    {"qt", countOfQt},
    {"jit", countOfJit},
    {"live", countOfLiveSearch},
}};

/// A tenth of the text, to see that ten times as much takes ten times as long.
Pieces tenthOf(const Pieces &pieces)
{
    if (pieces.size() == 1)
        return {pieces.front().left(pieces.front().size() / 10)};
    return {pieces.begin(), pieces.begin() + qptrdiff(pieces.size() / 10)};
}

/// One turn of each, another one first every time. A ratio above 1 says that the peer takes longer.
void compare(benchmark::State &state, const Search &search, const Pieces &pieces)
{
    static size_t first = 0;
    for ([[maybe_unused]] auto iteration : state) {
        std::array<qsizetype, Runners.size()> counts{};
        std::array<double, Runners.size()> times{};
        ++first;
        const Pieces tenth = tenthOf(pieces);
        const double tenthTime = processorSecondsFor([&] { countOfFinder(search, tenth); });
        for (size_t turn = 0; turn < Runners.size(); ++turn) {
            const size_t runner = (first + turn) % Runners.size();
            times.at(runner) =
                processorSecondsFor([&] { counts.at(runner) = Runners.at(runner).count(search, pieces); });
        }
        state.SetIterationTime(times[0]);
        state.counters["matches"] = double(counts[0]);
        state.counters["jit_matches"] = double(counts[4]);
        state.counters["ms"] = times[1] * 1000;
        state.counters["live/matcher"] = times[5] / times[1];
        state.counters["whole/tenth"] = times[0] / tenthTime;
        for (const size_t peer : {2, 3, 4}) {
            const std::string name = Runners.at(peer).name;
            state.counters[name + "/finder"] = times.at(peer) / times[0];
            state.counters[name + "/matcher"] = times.at(peer) / times[1];
        }
        if (counts[0] != counts[2] || counts[1] != counts[2] || counts[5] != counts[2])
            return state.SkipWithError("the counts are not those of ICU");
    }
}

/// ZEV_BENCH_SCALE shrinks the library for a quick look: 0.01 is a hundredth of it.
double scale()
{
    bool given = false;
    const double scale = qEnvironmentVariable("ZEV_BENCH_SCALE").toDouble(&given);
    return given ? scale : 1.0;
}

void registerSearches(const std::string &library, const Pieces &pieces)
{
    const std::pair<const char *, Search> searches[]{
        {"rare literal", {u"Zanzibar"_s, false}},
        {"rare literal (any case)", {u"zanzibar"_s, true}},
        {"literal", {u"love"_s, false}},
        {"literal (any case)", {u"love"_s, true}},
        {"kiss (any case)", {u"kiss"_s, true}},
        {"strange (any case)", {u"strange"_s, true}},
        {"\\bLove\\b (any case)", {u"\\bLove\\b"_s, true}},
        {"Track (\\d+)", {u"Track (\\d+)"_s, false}},
        {"Track (\\d+) (any case)", {u"Track (\\d+)"_s, true}},
        {"Track \\d*1", {u"Track \\d*1"_s, false}},
        {"(\\d+)", {u"(\\d+)"_s, false}},
        {"(\\w+)", {u"(\\w+)"_s, false}},
        {"(\\s+)", {u"(\\s+)"_s, false}},
        {"e-mail", {*ZEVPatternItem::email().regexString(), false}},
        {"web address", {*ZEVPatternItem::webAddress().regexString(), false}},
    };
    for (const auto &[name, search] : searches) {
        benchmark::RegisterBenchmark((library + '/' + name).c_str(), compare, search, std::cref(pieces))
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(9)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const Pieces shortPieces = MusicLibrary::pieces(qsizetype(1'000'000 * scale()));
    const Pieces oneText{MusicLibrary::text(qsizetype(64'000'000 * scale()))};
    registerSearches("pieces", shortPieces);
    registerSearches("text", oneText);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
