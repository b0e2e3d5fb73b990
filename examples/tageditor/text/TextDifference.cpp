// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TextDifference.h>

namespace {

void mark(QList<ZEVRange> &ranges, qsizetype position, qsizetype length = 1)
{
    if (length <= 0)
        return;
    if (!ranges.isEmpty() && ranges.last().end() == position)
        ranges.last().length += length;
    else
        ranges.append({position, length});
}

bool isGap(QChar character) { return character.isSpace() || character == u'_'; }

/// Whether one stands in the place of the other.
bool correspond(QChar a, QChar b) { return a.toCaseFolded() == b.toCaseFolded() || (isGap(a) && isGap(b)); }

} // namespace

TextDifference TextDifference::between(QStringView before, QStringView after)
{
    TextDifference difference;
    const bool isUnitForUnit = before.size() == after.size();
    qsizetype reached = 0; // in the text after
    for (qsizetype n = 0; n < before.size(); ++n) {
        const bool hasCounterpart =
            reached < after.size() && (isUnitForUnit || correspond(before[n], after[reached]));
        if (!hasCounterpart || before[n] != after[reached])
            mark(difference.before, n);
        if (hasCounterpart && before[n] != after[reached])
            mark(difference.after, reached);
        reached += hasCounterpart ? 1 : 0;
    }
    mark(difference.after, reached, after.size() - reached);
    return difference;
}
