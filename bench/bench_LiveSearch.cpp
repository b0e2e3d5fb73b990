// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "MusicLibrary.h"

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QAbstractTableModel>

#include <benchmark/benchmark.h>
#include <unicode/regex.h>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

/// A table of the usual kind: its texts are asked for through data().
class Table : public QAbstractTableModel {
public:
    static constexpr int Columns = 10;

    explicit Table(qsizetype cells)
        : m_cells(MusicLibrary::pieces(cells))
    {
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_cells.size()) / Columns;
    }
    int columnCount(const QModelIndex &) const override { return Columns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::EditRole)
            return {};
        return m_cells[size_t(index.row()) * Columns + size_t(index.column())];
    }

    const std::vector<QString> &cells() const { return m_cells; }

private:
    std::vector<QString> m_cells;
};

/// The bare engine over the same strings, which only counts.
qsizetype countOfIcu(const ZEVRegularExpression &expression, const std::vector<QString> &cells)
{
    UErrorCode code = U_ZERO_ERROR;
    const QString &pattern = expression.pattern();
    const uint32_t flags =
        expression.options().testFlag(ZEVRegularExpression::CaseInsensitive) ? UREGEX_CASE_INSENSITIVE : 0;
    icu::RegexMatcher matcher(icu::UnicodeString(false, pattern.utf16(), int32_t(pattern.size())), flags,
                              code);
    icu::UnicodeString text;
    qsizetype count = 0;
    for (const QString &cell : cells) {
        text.setTo(false, reinterpret_cast<const UChar *>(cell.utf16()), int32_t(cell.size()));
        matcher.reset(text);
        while (matcher.find(code))
            ++count;
    }
    return U_SUCCESS(code) ? count : -1;
}

/// What a key press costs: the query made into an expression, the model walked for one slice of the search,
/// and an observer who hears of every match.
struct LiveSearch {
    explicit LiveSearch(Table &table)
        : client(&table, nullptr, &finder)
    {
        finder.setSliceDuration(30ms);
        QObject::connect(&finder, &ZEVTextFinder::numberOfMatchesChanged, &finder,
                         [this] { heard += finder.numberOfMatches().has_value(); });
    }

    ZEVTextFinder finder;
    ZEVItemModelFinderClient client;
    qsizetype heard = 0;
};

void pressKey(benchmark::State &state, const ZEVFindPanelQuery &query, Table &table)
{
    static bool oursFirst = false;
    LiveSearch search(table);
    search.client.stringLength(); // measured when the table was filled, not at the key press
    const auto seconds = [](auto &&action) {
        const auto start = Clock::now();
        action();
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    for ([[maybe_unused]] auto iteration : state) {
        qsizetype icuCount = 0;
        double keyPress = 0;
        double rest = 0;
        double icu = 0;
        oursFirst = !oursFirst;
        for (const bool isOurs : {oursFirst, !oursFirst}) {
            if (isOurs) {
                keyPress =
                    seconds([&] { search.finder.performSearchAgainstExpression(query.searchExpression()); });
                rest = seconds([&] { search.finder.finishSearch(); });
            } else {
                icu = seconds([&] { icuCount = countOfIcu(*query.searchExpression(), table.cells()); });
            }
        }
        state.SetIterationTime(keyPress);
        state.counters["whole_ms"] = 1000 * (keyPress + rest);
        state.counters["icu/whole"] = icu / (keyPress + rest);
        state.counters["matches"] = double(icuCount);
        if (search.finder.foundMatches().size() != icuCount || search.heard < icuCount)
            return state.SkipWithError("the counts are not those of ICU");
    }
}

void registerKeyPress(const std::string &name, const QVariantList &pattern, bool anyCase, Table &table)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setCaseInsensitiveSearch(anyCase);
    benchmark::RegisterBenchmark(name.c_str(), pressKey, query, std::ref(table))
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(15)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    Table table(200'000);
    registerKeyPress("literal", {u"Strange"_s}, false, table);
    registerKeyPress("literal (any case)", {u"strange"_s}, true, table);
    registerKeyPress("one letter (any case)", {u"s"_s}, true, table);
    QList<ZEVPatternItem> items = ZEVPatternItem::escapeItems();
    items += {ZEVPatternItem::tab(), ZEVPatternItem::lineBreak(), ZEVPatternItem::email()};
    for (const ZEVPatternItem &item : std::as_const(items))
        registerKeyPress(item.title()->toStdString(), {QVariant::fromValue(item)}, true, table);
    registerKeyPress("Track [#]", {u"Track "_s, QVariant::fromValue(ZEVPatternItem::digits())}, true, table);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
