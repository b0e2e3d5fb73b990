// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/TrackFinderClient.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindPanel/ZEVCellMatches.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>

#include <QPersistentModelIndex>
#include <QTimer>

/// Keeps the matches of one query in a table of tracks up to date, and one of them as the current match.
class TrackSearch : public QObject {
    Q_OBJECT

public:
    enum Direction { Backward = -1, Forward = 1 };

    explicit TrackSearch(TrackTableModel *model, QObject *parent = nullptr);
    ~TrackSearch() override;

    /// Searches once the events at hand are done, so that a burst of changes costs one search.
    void setQuery(const ZEVFindPanelQuery &query);

    /// Searches at once when a search is due, now or later.
    void searchIfPending();

    /// Nil when there is nothing to search for.
    std::optional<qsizetype> numberOfMatches() const { return m_finder.numberOfMatches(); }

    /// The expression took too long somewhere, so matches are missing.
    bool isCutShort() const { return m_finder.limitReached(); }

    /// Why the query is no expression; empty when it is one.
    const QString &error() const { return m_error; }

    TrackFinderClient::Place match(qsizetype number) const;
    ZEVCellMatches matchesInCell(int row, TrackField field) const;

    /// -1 for none, as after every change of the query.
    qsizetype currentMatch() const { return m_currentMatch; }

    /// Goes on from the current match or, without one, from where the last one was; around the end.
    void step(Direction direction);

Q_SIGNALS:
    /// During a search, for every match.
    void countChanged();

    /// A search is done, and whatever it says of matches and errors has changed.
    void searched();
    void currentMatchChanged();

private:
    void searchIn(qint64 milliseconds);
    void tracksAdded();
    void tracksReplaced();
    void tracksSorted();
    void textsChanged();
    void search(const std::optional<ZEVRange> &current);
    std::optional<ZEVRange> currentRange() const;
    void keepPlaceOfCurrentMatch();
    void compileExpression();
    void restoreCurrentMatch(const std::optional<ZEVRange> &range);
    void setCurrentMatch(qsizetype number);
    qsizetype firstMatchAt(qsizetype location) const;

    const TrackTableModel &m_model;
    TrackFinderClient m_client;
    ZEVTextFinder m_finder;
    ZEVFindPanelQuery m_query;
    std::optional<ZEVRegularExpression> m_expression;
    QString m_error;
    QTimer m_timer;
    qsizetype m_currentMatch = -1;
    qsizetype m_lastLocation = 0; ///< where the last current match was
    qint64 m_searchDuration = 0; ///< milliseconds
    bool m_isPending = false; ///< a search is due
    bool m_queryChanged = false;
    bool m_isStale = false; ///< the matches lie in texts that were changed
    QPersistentModelIndex m_currentCell; ///< where the current match is, wherever its row is sorted to
    ZEVRange m_rangeInCell;
};
