// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QFutureWatcher>

#include <chrono>
#include <span>

class ZEVTextFinderClient;

/// One walk of an expression over a client's text, piece by piece. The client is only ever asked on the
/// thread of the walk; pieces that it has handed out may be matched on another one, so that no expression
/// holds up the user.
class ZEVTextSearch {
public:
    /// Takes the next matches; false ends the walk at once, which may have lost whoever began it.
    using Sink = std::function<bool(std::span<const ZEVRange>)>;

    enum class State { Over, Unfinished, Left };

    /// Null, or without an expression, is a walk that is over.
    ZEVTextSearch(const ZEVTextFinderClient *client, const std::optional<ZEVRegularExpression> &expression);
    ~ZEVTextSearch();
    Q_DISABLE_COPY_MOVE(ZEVTextSearch)

    qsizetype stringLength() const { return m_total; }
    bool hasBegun() const { return m_matcher.has_value(); }
    bool limitReached() const;

    /// Whether \a client has the text that is walked. An editable client tells; of another only the length is
    /// looked at.
    bool isOfTextOf(const ZEVTextFinderClient *client) const;

    /// Goes on for \a duration at the most, even within a piece; 0 has no end.
    State run(std::chrono::milliseconds duration, const Sink &sink);

    /// Has another thread match the pieces that can be had from the client in \a duration, and calls
    /// \a finished on the thread of \a context once they are. run() gives them up.
    void matchInBackground(std::chrono::milliseconds duration, QObject *context,
                           const std::function<void()> &finished);

    /// Whether there are matches of the other thread to be taken.
    bool hasBackgroundMatches() const { return m_isInBackground && m_watcher.isFinished(); }
    State takeBackgroundMatches(const Sink &sink);
    void giveUpBackground();

private:
    struct Piece {
        QString text;
        qsizetype location = 0;
        QList<ZEVRange> matches; ///< in the text
    };
    struct Background;
    using Pieces = QList<Piece>;

    std::optional<Piece> nextPiece();
    Pieces nextPieces(std::chrono::milliseconds duration);
    State collect(const Piece &piece, const Sink &sink);
    State deliver(std::span<const ZEVRange> matches, qsizetype number, const Sink &sink);
    bool isExhausted() const;

    const ZEVTextFinderClient *m_client;
    const std::optional<ZEVRegularExpression> m_expression;
    std::optional<ZEVRegularExpressionMatcher> m_matcher;
    std::shared_ptr<Background> m_background; ///< the matcher of the other thread
    QFutureWatcher<Pieces> m_watcher;
    std::optional<quint64> m_changeStamp;
    qsizetype m_total = 0;
    qsizetype m_index = 0; ///< where the next piece is
    qsizetype m_backgroundIndex = 0; ///< where those on the other thread begin
    qsizetype m_deliveredInPiece = 0; ///< of one that was interrupted
    bool m_isInBackground = false;
};
