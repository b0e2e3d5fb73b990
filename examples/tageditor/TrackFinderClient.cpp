// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/TrackFinderClient.h>

#include <tageditor/TrackTableModel.h>

#include <algorithm>

namespace {

/// What the cell takes of the whole text: one unit more than it has, or nothing.
qsizetype extent(const QString &text) { return text.isEmpty() ? 0 : text.size() + 1; }

qsizetype extent(const Track &track)
{
    qsizetype sum = 0;
    for (const QString &text : track.fields)
        sum += extent(text);
    return sum;
}

} // namespace

TrackFinderClient::TrackFinderClient(const TrackTableModel &model)
    : m_model(model)
{
    takeInNewRows();
}

void TrackFinderClient::takeInNewRows()
{
    m_rowEnds.reserve(size_t(m_model.rowCount()));
    for (int row = int(m_rowEnds.size()); row < m_model.rowCount(); ++row)
        m_rowEnds.push_back(stringLength() + extent(m_model.track(row)));
}

void TrackFinderClient::startOver()
{
    m_rowEnds.clear();
    takeInNewRows();
}

QString TrackFinderClient::stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const
{
    effectiveRange = {index, 0};
    if (index < 0 || index >= stringLength())
        return {};
    const Place place = placeOfRange({index, 0});
    effectiveRange = rangeOfCell(place.row, place.field);
    return m_model.track(place.row).text(place.field);
}

ZEVRange TrackFinderClient::rangeOfCell(int row, TrackField field) const
{
    qsizetype start = startOfRow(row);
    const Track &track = m_model.track(row);
    for (int before = 0; before < int(field); ++before)
        start += extent(track.fields.at(size_t(before)));
    return {start, extent(track.text(field))};
}

TrackFinderClient::Place TrackFinderClient::placeOfRange(const ZEVRange &range) const
{
    const int row = rowAtIndex(range.location);
    qsizetype offset = range.location - startOfRow(row);
    int field = 0;
    for (const Track &track = m_model.track(row); field < TrackFieldCount - 1; ++field) {
        const qsizetype length = extent(track.fields.at(size_t(field)));
        if (offset < length)
            break;
        offset -= length;
    }
    return {row, TrackField(field), {offset, range.length}};
}

int TrackFinderClient::rowAtIndex(qsizetype index) const
{
    return int(std::ranges::upper_bound(m_rowEnds, index) - m_rowEnds.begin());
}
