// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuTitleFilter_p.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

#include <QMenu>

#include <algorithm>
#include <numeric>

namespace {

/// Menus may be nested in a circle.
constexpr int DeepestMenu = 8;

/// As the dot of an expression knows them (Unicode Technical Standard #18, 1.6).
bool endsLine(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x0A && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

QStringList wordsIn(const QString &string)
{
    return ZEVCaseMapping::caseFolded(string).split(u' ', Qt::SkipEmptyParts);
}

/// The first place of each word after the one before is as good as any other, so no step is taken back.
bool lineHasWords(QStringView line, const QStringList &words)
{
    qsizetype from = 0;
    for (const QString &word : words) {
        const qsizetype found = line.indexOf(word, from);
        if (found < 0)
            return false;
        from = found + word.size();
    }
    return true;
}

bool hasWords(QStringView text, const QStringList &words)
{
    while (true) {
        const auto *const end = std::find_if(text.begin(), text.end(), endsLine);
        if (lineHasWords({text.begin(), end}, words))
            return true;
        if (end == text.end())
            return false;
        text = {end + 1, text.end()};
    }
}

bool isInMenu(const QAction *item, const ZEVMenuTitleFilter::Test &test, int depth)
{
    const auto *menu = item->menu<QMenu *>();
    if (!menu || depth == DeepestMenu)
        return false;
    return std::ranges::any_of(menu->actions(), [&](const QAction *inner) {
        return (!inner->isSeparator() && test(ZEVMenuItem::title(inner))) || isInMenu(inner, test, depth + 1);
    });
}

/// Takes what passes, and a separator once something passes on either side.
class Collector {
public:
    void separate(QAction *separator) { m_separator = items.isEmpty() ? nullptr : separator; }

    void append(QAction *item)
    {
        if (m_separator)
            items.append(std::exchange(m_separator, nullptr));
        items.append(item);
    }

    QList<QAction *> items;

private:
    QAction *m_separator = nullptr;
};

} // namespace

bool ZEVMenuTitleFilter::isOneLine(const QString &string) { return std::ranges::none_of(string, endsLine); }

QList<QAction *> ZEVMenuTitleFilter::itemsWithWords(const QList<QAction *> &items, const QString &string)
{
    const QStringList words = wordsIn(string);
    const auto test = [&](const QString &title) {
        return hasWords(ZEVCaseMapping::caseFolded(title), words);
    };
    if (words.isEmpty())
        return items;
    read(items);
    const std::vector<std::size_t> found = indexesWithWords(words);
    Collector passing;
    auto next = found.begin();
    const auto appendUpTo = [&](std::size_t end) {
        for (; next != found.end() && *next < end; ++next)
            passing.append(items.at(qsizetype(*next)));
    };
    for (const std::size_t other : m_others) {
        QAction *item = items.at(qsizetype(other));
        appendUpTo(other);
        if (item->isSeparator())
            passing.separate(item);
        else if ((next == found.end() || *next != other) && isInMenu(item, test, 0))
            passing.append(item);
    }
    appendUpTo(std::size_t(items.size()));
    return passing.items;
}

QList<QAction *> ZEVMenuTitleFilter::itemsPassing(const QList<QAction *> &items, const Test &test)
{
    Collector passing;
    for (QAction *item : items) {
        if (item->isSeparator())
            passing.separate(item);
        else if (test(ZEVMenuItem::title(item)) || isInMenu(item, test, 0))
            passing.append(item);
    }
    return passing.items;
}

void ZEVMenuTitleFilter::read(const QList<QAction *> &items)
{
    if (items.constData() != m_items.constData() || items.size() != m_items.size()) {
        m_items = items;
        watch();
    }
    if (m_changed.empty())
        return;
    for (const std::size_t index : m_changed) {
        const QAction *item = items.at(qsizetype(index));
        m_folded[index] =
            item->isSeparator() ? QString() : ZEVCaseMapping::caseFolded(ZEVMenuItem::title(item));
    }
    m_changed.clear();
    joinTitles();
}

void ZEVMenuTitleFilter::watch()
{
    m_watcher = std::make_unique<QObject>();
    m_folded.assign(std::size_t(m_items.size()), {});
    m_changed.resize(m_folded.size());
    std::iota(m_changed.begin(), m_changed.end(), std::size_t(0));
    for (std::size_t index = 0; index < m_folded.size(); ++index)
        QObject::connect(m_items.at(qsizetype(index)), &QAction::changed, m_watcher.get(),
                         [this, index] { m_changed.push_back(index); });
}

/// One long text is searched far faster than many short ones.
void ZEVMenuTitleFilter::joinTitles()
{
    m_text.clear();
    m_begins.assign(1, 0);
    m_others.clear();
    for (std::size_t index = 0; index < m_folded.size(); ++index) {
        m_text.append(m_folded[index]).append(u'\n');
        m_begins.push_back(m_text.size());
        const QAction *item = m_items.at(qsizetype(index));
        if (item->isSeparator() || item->menu<QMenu *>())
            m_others.push_back(index);
    }
}

QStringView ZEVMenuTitleFilter::title(std::size_t index) const
{
    return QStringView(m_text).sliced(m_begins[index], m_begins[index + 1] - m_begins[index] - 1);
}

/// The longest word leads to the titles that may have all of them.
std::vector<std::size_t> ZEVMenuTitleFilter::indexesWithWords(const QStringList &words) const
{
    const QString longest = *std::ranges::max_element(words, {}, &QString::size);
    ZEVRegularExpressionMatcher matcher(
        *ZEVRegularExpression::compile(ZEVRegularExpression::escapedPatternForString(longest)));
    matcher.setText(m_text);
    std::vector<std::size_t> indexes;
    std::size_t index = 0; // all before it are tested
    for (QList<ZEVRange> places; matcher.findSome(places); places.clear()) {
        for (const ZEVRange &place : std::as_const(places)) {
            if (place.location < m_begins[index])
                continue;
            while (m_begins[index + 1] <= place.location)
                ++index;
            if (words.size() == 1 || hasWords(title(index), words))
                indexes.push_back(index);
            ++index;
        }
    }
    return indexes;
}
