// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TrackFinderClient.h>

#include <tageditor/tracks/TagValues.h>

/// Behind the text of every cell there is one unit that belongs to it, and so the separator belongs to the
/// value before it.
QString TrackFinderClient::stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const
{
    QString text = ZEVItemModelFinderClient::stringAtIndex(index, effectiveRange);
    if (!text.contains(TagValues::Separator))
        return text;
    const qsizetype place = index - effectiveRange.location;
    const qsizetype start = place == 0 ? 0 : text.lastIndexOf(TagValues::Separator, place - 1) + 1;
    const qsizetype separator = text.indexOf(TagValues::Separator, start);
    const qsizetype end = separator < 0 ? text.size() : separator;
    effectiveRange = {effectiveRange.location + start, end - start + 1};
    return text.sliced(start, end - start);
}
