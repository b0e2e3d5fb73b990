// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/NaturalOrder.h>

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace {

/// In the C locale no collation takes place and "10" would stand before "2".
QCollator naturalCollator()
{
    QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    collator.setNumericMode(true);
    return collator;
}

std::vector<QCollatorSortKey> sortKeys(const QStringList &texts)
{
    const QCollator collator = naturalCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(size_t(texts.size()));
    for (const QString &text : texts)
        keys.push_back(collator.sortKey(text));
    return keys;
}

} // namespace

std::vector<int> naturalOrder(const QStringList &texts, Qt::SortOrder order)
{
    const std::vector<QCollatorSortKey> keys = sortKeys(texts);
    std::vector<int> indices(keys.size());
    std::iota(indices.begin(), indices.end(), 0);
    std::ranges::stable_sort(indices, [&](int a, int b) {
        if (texts.at(a).isEmpty() || texts.at(b).isEmpty())
            return !texts.at(a).isEmpty() && texts.at(b).isEmpty();
        const int comparison = keys[size_t(a)].compare(keys[size_t(b)]);
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    return indices;
}
