// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/ZEVRange.h>

#include <QList>
#include <QObject>

#include <optional>

class ZEVRegularExpression;
class ZEVTextFinderClient;

/// Runs a search over a client's text and keeps every match. Main thread only.
class ZEV_EXPORT ZEVTextFinder : public QObject {
    Q_OBJECT
    Q_PROPERTY(std::optional<qsizetype> numberOfMatches READ numberOfMatches NOTIFY numberOfMatchesChanged)

public:
    explicit ZEVTextFinder(QObject *parent = nullptr);
    ~ZEVTextFinder() override;

    /// A plain pointer: the client must outlive the finder or take itself away.
    ZEVTextFinderClient *client() const { return m_client; }
    void setClient(ZEVTextFinderClient *client) { m_client = client; }

    /// Collects every match of \a expression in the client's pieces. A match that would span two pieces is
    /// not found. Nil finds nothing. An observer may search anew or delete the finder while the count grows.
    void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression);

    /// The matches of the last search in text order, as ranges of the client's whole text. They stay until
    /// the next search, also when the text changes.
    const QList<ZEVRange> &foundMatches() const { return m_foundMatches; }

    /// Nil before any search and when nothing was searched; 0 when a search found nothing.
    std::optional<qsizetype> numberOfMatches() const { return m_numberOfMatches; }

    /// The last search left out a part of the text, since its expression took too long or too much stack;
    /// said when the search has ended.
    bool limitReached() const { return m_limitReached; }

Q_SIGNALS:
    /// Emitted for every match, so that observers see the count grow.
    void numberOfMatchesChanged();

private:
    class Search;
    void setNumberOfMatches(std::optional<qsizetype> number);

    ZEVTextFinderClient *m_client = nullptr;
    QList<ZEVRange> m_foundMatches;
    std::optional<qsizetype> m_numberOfMatches;
    quint64 m_searchNumber = 0;
    bool m_limitReached = false;
};
