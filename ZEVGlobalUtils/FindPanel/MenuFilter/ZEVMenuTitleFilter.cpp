// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuTitleFilter_p.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>

#include <QMenu>

#include <algorithm>

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
    m_titles.resize(std::size_t(items.size()));
    const auto passes = [&](const Title &title) {
        return title.isOneLine ? lineHasWords(title.folded, words) : hasWords(title.folded, words);
    };
    Collector passing;
    for (qsizetype i = 0; i < items.size(); ++i) {
        QAction *item = items.at(i);
        if (item->isSeparator())
            passing.separate(item);
        else if (passes(folded(i, item)) || isInMenu(item, test, 0))
            passing.append(item);
    }
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

const ZEVMenuTitleFilter::Title &ZEVMenuTitleFilter::folded(qsizetype index, const QAction *item)
{
    Title &known = m_titles[std::size_t(index)];
    const QString title = ZEVMenuItem::title(item);
    if (known.title != title)
        known = {title, ZEVCaseMapping::caseFolded(title), isOneLine(title)};
    return known;
}
