// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

// A menu's titles filtered at each press of a key, beside the same expression searched for with ICU's reused
// matcher and with QRegularExpression, and a loop of indexOf; and the time from a key press until the menu has painted itself.

#include "MusicTitles.h"
#include "ProcessorTime.h"

#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QWidgetAction>

#include <benchmark/benchmark.h>
#include <unicode/regex.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString Typed = u"love straße"_s;

qsizetype countWithICU(const QStringList &titles, const QString &pattern)
{
    UErrorCode code = U_ZERO_ERROR;
    const icu::UnicodeString expression(false, pattern.utf16(), int32_t(pattern.size()));
    icu::RegexMatcher matcher(expression, UREGEX_CASE_INSENSITIVE, code);
    qsizetype count = 0;
    for (const QString &title : titles) {
        const icu::UnicodeString text(false, title.utf16(), int32_t(title.size()));
        matcher.reset(text);
        count += matcher.find() ? 1 : 0;
    }
    return count;
}

qsizetype countWithQt(const QStringList &titles, const QString &pattern)
{
    const QRegularExpression expression(
        pattern, QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return std::ranges::count_if(titles,
                                 [&](const QString &title) { return expression.match(title).hasMatch(); });
}

/// The words one after the other, each found wherever it stands first.
qsizetype countWithIndexOf(const QStringList &titles, const QString &needle)
{
    const QStringList words = needle.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::count_if(titles, [&](const QString &title) {
        qsizetype from = 0;
        return std::ranges::all_of(words, [&](const QString &word) {
            const qsizetype found = title.indexOf(word, from, Qt::CaseInsensitive);
            from = found + word.size();
            return found >= 0;
        });
    });
}

/// Seconds, summed over the keys of a needle.
struct Costs {
    double firstKey = 0; ///< with the titles not yet read
    double ours = 0;
    double icu = 0;
    double qt = 0;
    double indexOf = 0;
    bool areTheSame = true;
};

void pressKey(const ZEVMenuFilterViewController &filter, const QList<QAction *> &items,
              const QStringList &titles, const QString &needle, Costs &costs)
{
    const QString pattern = ZEVStringFilterRegexValue::filterRegexValue(needle)->pattern();
    qsizetype ours = 0, icu = 0, qt = 0;
    const double cost = processorSecondsFor([&] { ours = filter.filteredItems(items, needle).size(); });
    (needle.size() == 1 ? costs.firstKey : costs.ours) += cost;
    const double icuCost = processorSecondsFor([&] { icu = countWithICU(titles, pattern); });
    const double qtCost = processorSecondsFor([&] { qt = countWithQt(titles, pattern); });
    const double indexOfCost =
        processorSecondsFor([&] { benchmark::DoNotOptimize(countWithIndexOf(titles, needle)); });
    costs.indexOf += needle.size() == 1 ? 0 : indexOfCost;
    costs.icu += needle.size() == 1 ? 0 : icuCost;
    costs.qt += needle.size() == 1 ? 0 : qtCost;
    // Ours finds "ss" in "ß" letter by letter; Qt's expressions do not find it at all.
    costs.areTheSame = costs.areTheSame && ours >= icu && icu >= qt;
}

/// Actions with titles, for a menu.
struct Items {
    explicit Items(qsizetype count)
        : titles(benchTitles(count))
    {
        for (const QString &title : titles) {
            items.append(new QAction(&owner));
            ZEVMenuItem::setTitle(items.last(), title);
        }
    }

    QObject owner;
    QStringList titles;
    QList<QAction *> items;
};

void filterPerKeyPress(benchmark::State &state)
{
    const Items all(state.range(0));
    const ZEVMenuFilterViewController filter(ZEVControlSize::Small);
    Costs costs;
    for ([[maybe_unused]] auto _ : state) {
        for (qsizetype length = 1; length <= Typed.size(); ++length)
            pressKey(filter, all.items, all.titles, Typed.first(length), costs);
        state.SetIterationTime(costs.ours / double(Typed.size() - 1));
    }
    if (!costs.areTheSame)
        state.SkipWithError("too little was found");
    state.counters["first_key_ms"] = costs.firstKey * 1000;
    state.counters["icu_over_ours"] = costs.icu / costs.ours;
    state.counters["qt_over_ours"] = costs.qt / costs.ours;
    state.counters["indexOf_over_ours"] = costs.indexOf / costs.ours;
}

/// Everything between the key and the pixels, but the window system.
void keyPressToPaintedMenu(benchmark::State &state)
{
    const Items all(state.range(0));
    QMenu menu;
    ZEVMenuFilterViewController filter(ZEVControlSize::Small);
    filter.setAutofocus(true);
    const auto client = filter.newDelegatedClient();
    menu.addAction(filter.filterMenuItem());
    client->menuItems = all.items;
    client->filterDidChange(&filter);
    menu.popup({});
    QCoreApplication::processEvents();
    std::vector<double> keys;
    for ([[maybe_unused]] auto _ : state) {
        filter.clearFilterAndNotifyDelegate();
        for (const QChar character : Typed) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
            keys.push_back(secondsFor([&] {
                QCoreApplication::sendEvent(filter.searchField(), &press);
                menu.repaint();
            }));
        }
        state.SetIterationTime(*std::ranges::max_element(keys));
    }
    std::ranges::sort(keys);
    state.counters["median_ms"] = keys[keys.size() / 2] * 1000;
    state.counters["worst_ms"] = keys.back() * 1000;
    menu.close();
}

} // namespace

BENCHMARK(filterPerKeyPress)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(9)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(keyPressToPaintedMenu)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(9)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
