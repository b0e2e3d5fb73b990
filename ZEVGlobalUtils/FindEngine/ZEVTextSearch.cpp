// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextSearch_p.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderEditableClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QDeadlineTimer>
#include <QPromise>
#include <QThreadPool>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// A batch holds a copy of its pieces, and nobody hears of its matches before it is done.
constexpr qsizetype LargestBatch = 1 << 20; // UTF-16 units

/// Reading the clock costs as much as searching a short piece.
constexpr unsigned PiecesPerReading = 16;

QDeadlineTimer deadlineAfter(std::chrono::milliseconds duration)
{
    return duration > 0ms ? QDeadlineTimer(duration, Qt::PreciseTimer)
                          : QDeadlineTimer(QDeadlineTimer::Forever);
}

std::optional<quint64> changeStampOf(const ZEVTextFinderClient *client)
{
    const auto *editable = dynamic_cast<const ZEVTextFinderEditableClient *>(client);
    return editable ? std::optional(editable->changeStamp()) : std::nullopt;
}

/// Of its own, since whoever fills the application's pool may be waiting for this thread.
QThreadPool &threads()
{
    static QThreadPool threads;
    return threads;
}

} // namespace

/// Belongs to the one batch that is being matched.
struct ZEVTextSearch::Background {
    explicit Background(const ZEVRegularExpression &expression)
        : matcher(expression)
    {
    }

    void match(Piece &piece)
    {
        matcher.setText(piece.text);
        while (matcher.findSome(piece.matches)) { }
    }

    void match(Pieces pieces, QPromise<Pieces> &promise)
    {
        matcher.setInterruption([&promise] { return promise.isCanceled(); });
        for (Piece &piece : pieces) {
            if (promise.isCanceled())
                break;
            match(piece);
        }
        promise.addResult(std::move(pieces));
        matcher.setInterruption({}); // the promise goes
    }

    ZEVRegularExpressionMatcher matcher;
};

ZEVTextSearch::ZEVTextSearch(const ZEVTextFinderClient *client,
                             const std::optional<ZEVRegularExpression> &expression)
    : m_client(client)
    , m_expression(expression)
    , m_changeStamp(changeStampOf(client))
    , m_total(client ? client->stringLength() : 0)
{
    if (m_expression && m_total > 0)
        m_matcher.emplace(*m_expression);
}

ZEVTextSearch::~ZEVTextSearch() { m_watcher.cancel(); }

bool ZEVTextSearch::isExhausted() const
{
    return m_matcher->isExhausted() || (m_background && m_background->matcher.isExhausted());
}

bool ZEVTextSearch::limitReached() const
{
    return hasBegun()
        && (m_matcher->limitReached() || (m_background && m_background->matcher.limitReached()));
}

bool ZEVTextSearch::isOfTextOf(const ZEVTextFinderClient *client) const
{
    if (client != m_client || !client)
        return client == m_client;
    return m_changeStamp ? m_changeStamp == changeStampOf(client) : client->stringLength() == m_total;
}

/// Nil when there is no more: also for a client that has less than it claims.
std::optional<ZEVTextSearch::Piece> ZEVTextSearch::nextPiece()
{
    if (!hasBegun() || m_index >= m_total)
        return std::nullopt;
    ZEVRange range;
    Piece piece{m_client->stringAtIndex(m_index, range), 0, {}};
    if (range.length <= 0)
        return std::nullopt;
    piece.location = range.location;
    m_index = range.length > m_total - m_index ? m_total : m_index + range.length;
    return piece;
}

ZEVTextSearch::State ZEVTextSearch::run(std::chrono::milliseconds duration, const Sink &sink)
{
    giveUpBackground();
    const QDeadlineTimer deadline = deadlineAfter(duration);
    if (hasBegun())
        m_matcher->setInterruption([deadline] { return deadline.hasExpired(); });
    for (unsigned pieces = 1; hasBegun() && !isExhausted(); ++pieces) {
        const qsizetype index = m_index;
        const auto piece = nextPiece();
        if (!piece)
            break;
        const State state = collect(*piece, sink);
        if (state == State::Unfinished)
            m_index = index;
        if (state != State::Over)
            return state;
        if (pieces % PiecesPerReading == 0 && deadline.hasExpired())
            return State::Unfinished;
    }
    return State::Over;
}

/// Its matcher may still be running for a moment, so the next batch gets another one.
void ZEVTextSearch::giveUpBackground()
{
    if (!m_isInBackground)
        return;
    m_isInBackground = false;
    m_watcher.cancel();
    m_background.reset();
    m_index = m_backgroundIndex;
}

ZEVTextSearch::State ZEVTextSearch::collect(const Piece &piece, const Sink &sink)
{
    m_matcher->setText(piece.text);
    QList<ZEVRange> some; // of its own, since whoever takes them may begin to search anew
    for (qsizetype number = 0; m_matcher->findSome(some, piece.location); number += some.size(), some.clear())
        if (deliver(some, number, sink) == State::Left)
            return State::Left;
    if (m_matcher->wasInterrupted())
        return State::Unfinished;
    m_deliveredInPiece = 0;
    return State::Over;
}

/// A piece that was interrupted is matched anew, and gives what it gave before: these are the matches from the one
/// of that number on.
ZEVTextSearch::State ZEVTextSearch::deliver(std::span<const ZEVRange> matches, qsizetype number,
                                            const Sink &sink)
{
    const qsizetype known = std::min(m_deliveredInPiece - number, qsizetype(matches.size()));
    if (known > 0)
        matches = matches.subspan(size_t(known));
    m_deliveredInPiece += qsizetype(matches.size());
    return matches.empty() || sink(matches) ? State::Over : State::Left;
}

ZEVTextSearch::Pieces ZEVTextSearch::nextPieces(std::chrono::milliseconds duration)
{
    const QDeadlineTimer deadline = deadlineAfter(duration);
    Pieces pieces;
    qsizetype length = 0;
    while (length < LargestBatch && !(deadline.hasExpired() && !pieces.isEmpty())) {
        auto piece = nextPiece();
        if (!piece)
            break;
        length += piece->text.size();
        pieces.append(std::move(*piece));
    }
    return pieces;
}

void ZEVTextSearch::matchInBackground(std::chrono::milliseconds duration, QObject *context,
                                      const std::function<void()> &finished)
{
    if (!m_background)
        m_background = std::make_shared<Background>(*m_expression);
    m_backgroundIndex = m_index;
    m_isInBackground = true;
    const auto promise = std::make_shared<QPromise<Pieces>>();
    promise->start();
    m_watcher.disconnect();
    QObject::connect(&m_watcher, &QFutureWatcherBase::finished, context, finished, Qt::QueuedConnection);
    m_watcher.setFuture(promise->future());
    threads().start([promise, pieces = nextPieces(duration), background = m_background] {
        background->match(pieces, *promise);
        promise->finish();
    });
}

ZEVTextSearch::State ZEVTextSearch::takeBackgroundMatches(const Sink &sink)
{
    m_isInBackground = false;
    Pieces pieces = m_watcher.result();
    for (Piece &piece : pieces) {
        for (ZEVRange &match : piece.matches)
            match.location += piece.location;
        if (deliver(piece.matches, 0, sink) == State::Left)
            return State::Left;
        m_deliveredInPiece = 0;
    }
    return m_index >= m_total || pieces.isEmpty() || isExhausted() ? State::Over : State::Unfinished;
}
