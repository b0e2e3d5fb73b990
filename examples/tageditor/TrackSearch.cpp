// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/TrackSearch.h>

#include <tageditor/TrackTableModel.h>

#include <ZEVGlobalUtils/Platform/ZEVErrorCatcher.h>

#include <QElapsedTimer>

#include <algorithm>

namespace {

/// While tracks come in, a search is run again after this many milliseconds, or after this many times what
/// the last one took: the larger pause of the two keeps the window free for its user.
constexpr qint64 ShortestPause = 250;
constexpr qint64 PauseFactor = 4;

} // namespace

TrackSearch::TrackSearch(TrackTableModel *model, QObject *parent)
    : QObject(parent)
    , m_model(*model)
    , m_client(*model)
{
    m_finder.setClient(&m_client);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TrackSearch::searchIfPending);
    connect(&m_finder, &ZEVTextFinder::numberOfMatchesChanged, this, &TrackSearch::countChanged);
    connect(model, &TrackTableModel::rowsInserted, this, &TrackSearch::tracksAdded);
    connect(model, &TrackTableModel::modelReset, this, &TrackSearch::tracksReplaced);
    connect(model, &TrackTableModel::layoutChanged, this, &TrackSearch::tracksSorted);
    connect(model, &TrackTableModel::dataChanged, this, &TrackSearch::textsChanged);
}

TrackSearch::~TrackSearch() = default;

void TrackSearch::setQuery(const ZEVFindPanelQuery &query)
{
    m_query = query;
    m_queryChanged = true;
    searchIn(0);
}

void TrackSearch::searchIfPending()
{
    if (m_isPending)
        search(currentRange());
}

void TrackSearch::searchIn(qint64 milliseconds)
{
    m_isPending = true;
    m_timer.start(int(milliseconds));
}

void TrackSearch::tracksAdded()
{
    m_client.takeInNewRows();
    if (m_expression && !m_isPending)
        searchIn(std::max(ShortestPause, PauseFactor * m_searchDuration));
}

void TrackSearch::tracksReplaced()
{
    m_client.startOver();
    m_lastLocation = 0;
    search(std::nullopt); // at once, since the old matches lie in text that is gone
}

/// \a current is where the current match is to be found again, if it is still one.
void TrackSearch::search(const std::optional<ZEVRange> &current)
{
    m_timer.stop();
    m_isPending = false;
    m_isStale = false;
    if (m_queryChanged)
        compileExpression();
    m_currentMatch = -1;
    QElapsedTimer elapsed;
    elapsed.start();
    m_finder.performSearchAgainstExpression(m_expression);
    m_searchDuration = elapsed.elapsed();
    restoreCurrentMatch(current);
    Q_EMIT searched();
}

std::optional<ZEVRange> TrackSearch::currentRange() const
{
    if (m_currentMatch < 0 || m_queryChanged)
        return std::nullopt;
    const ZEVRange cell = m_client.rangeOfCell(m_currentCell.row(), TrackField(m_currentCell.column()));
    return ZEVRange{cell.location + m_rangeInCell.location, m_rangeInCell.length};
}

void TrackSearch::keepPlaceOfCurrentMatch()
{
    const TrackFinderClient::Place place = match(m_currentMatch);
    m_currentCell = m_model.index(place.row, int(place.field));
    m_rangeInCell = place.range;
    m_lastLocation = m_finder.foundMatches().at(m_currentMatch).location;
}

void TrackSearch::tracksSorted()
{
    m_client.startOver();
    const std::optional<ZEVRange> current = currentRange();
    m_lastLocation = current ? current->location : 0;
    search(current);
}

/// Until the search has run, no cell has a match: the old ones may lie anywhere in the new texts.
void TrackSearch::textsChanged()
{
    m_client.startOver();
    m_isStale = true;
    if (const std::optional<ZEVRange> current = currentRange())
        m_lastLocation = current->location;
    searchIn(0);
}

void TrackSearch::compileExpression()
{
    m_queryChanged = false;
    m_error.clear();
    const ZEVErrorCatcher catcher(m_error);
    m_expression = m_query.searchExpression();
}

void TrackSearch::restoreCurrentMatch(const std::optional<ZEVRange> &range)
{
    if (!range)
        return;
    const qsizetype number = firstMatchAt(range->location);
    const QList<ZEVRange> &matches = m_finder.foundMatches();
    if (number >= matches.size() || matches.at(number) != *range)
        return;
    m_currentMatch = number;
    keepPlaceOfCurrentMatch();
}

TrackFinderClient::Place TrackSearch::match(qsizetype number) const
{
    return m_client.placeOfRange(m_finder.foundMatches().at(number));
}

ZEVCellMatches TrackSearch::matchesInCell(int row, TrackField field) const
{
    ZEVCellMatches result;
    if (m_isStale)
        return result;
    const ZEVRange cell = m_client.rangeOfCell(row, field);
    const qsizetype first = firstMatchAt(cell.location);
    const qsizetype end = firstMatchAt(cell.end());
    for (qsizetype n = first; n < end; ++n) {
        const ZEVRange &range = m_finder.foundMatches().at(n);
        result.ranges.append({range.location - cell.location, range.length});
    }
    if (m_currentMatch >= first && m_currentMatch < end)
        result.current = m_currentMatch - first;
    return result;
}

qsizetype TrackSearch::firstMatchAt(qsizetype location) const
{
    const QList<ZEVRange> &matches = m_finder.foundMatches();
    return std::ranges::lower_bound(matches, location, {}, &ZEVRange::location) - matches.begin();
}

void TrackSearch::step(Direction direction)
{
    if (m_queryChanged || m_isStale)
        search(currentRange());
    const qsizetype count = m_finder.foundMatches().size();
    if (count == 0)
        return;
    qsizetype next = m_currentMatch + direction;
    if (m_currentMatch < 0)
        next = firstMatchAt(m_lastLocation) - (direction == Backward ? 1 : 0);
    setCurrentMatch((next + count) % count);
}

void TrackSearch::setCurrentMatch(qsizetype number)
{
    m_currentMatch = number;
    keepPlaceOfCurrentMatch();
    Q_EMIT currentMatchChanged();
}
