// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderEditableClient.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

#include <QDeadlineTimer>
#include <QMetaMethod>
#include <QPointer>
#include <QTimer>

using namespace std::chrono_literals;

ZEVTextFinderClient::~ZEVTextFinderClient() = default;

ZEVTextFinder::ZEVTextFinder(QObject *parent)
    : QObject(parent)
    , m_expression(std::make_unique<std::optional<ZEVRegularExpression>>())
{
}

ZEVTextFinder::~ZEVTextFinder() = default;

const std::optional<ZEVRegularExpression> &ZEVTextFinder::expression() const { return *m_expression; }

void ZEVTextFinder::setNumberOfMatches(std::optional<qsizetype> number)
{
    if (m_numberOfMatches == number)
        return;
    m_numberOfMatches = number;
    announceNumberOfMatches();
}

void ZEVTextFinder::announceNumberOfMatches()
{
    if (m_textFinderViewController)
        m_textFinderViewController->setNumberOfMatches(m_numberOfMatches);
    Q_EMIT numberOfMatchesChanged();
}

/// One walk over the client's text. Every announced match runs code of the host, after which the finder may
/// be gone, busy with a newer search, or without its client.
class ZEVTextFinder::Search {
public:
    explicit Search(ZEVTextFinder *finder)
        : m_finder(finder)
        , m_isObserved(
              finder->m_textFinderViewController
              || finder->isSignalConnected(QMetaMethod::fromSignal(&ZEVTextFinder::numberOfMatchesChanged)))
    {
    }

    bool isCurrent() const { return m_finder && m_finder->m_search.get() == this; }

    void begin(const ZEVRegularExpression &expression)
    {
        m_client = m_finder->m_client;
        m_total = m_client->stringLength();
        m_changeStamp = changeStamp();
        if (m_total > 0)
            m_matcher.emplace(expression);
    }

    bool hasBegun() const { return m_matcher.has_value(); }
    bool limitReached() const { return m_matcher && m_matcher->limitReached(); }

    /// Matches that were found before the text changed lie anywhere. Only some clients tell.
    bool textHasChanged() const { return m_client != m_finder->m_client || m_changeStamp != changeStamp(); }

    /// Whether the search is over, after \a duration at the most; none has no end. A piece is never left half
    /// searched.
    bool run(std::chrono::milliseconds duration)
    {
        const QDeadlineTimer deadline(duration > 0ms ? QDeadlineTimer(duration, Qt::PreciseTimer)
                                                     : QDeadlineTimer(QDeadlineTimer::Forever));
        for (unsigned pieces = 1; searchPiece(); ++pieces)
            if (pieces % PiecesPerReading == 0 && deadline.hasExpired())
                return false;
        return true;
    }

private:
    static constexpr unsigned PiecesPerReading = 16;

    std::optional<quint64> changeStamp() const
    {
        const auto *client = dynamic_cast<ZEVTextFinderEditableClient *>(m_finder->m_client);
        return client ? std::optional(client->changeStamp()) : std::nullopt;
    }

    /// False when there is nothing more to search.
    bool searchPiece()
    {
        if (!m_matcher || !m_finder->m_client || m_index >= m_total || m_matcher->isExhausted())
            return false;
        ZEVRange piece;
        const QString text = m_finder->m_client->stringAtIndex(m_index, piece);
        if (piece.length <= 0 || !collect(text, piece.location) || piece.length > m_total - m_index)
            return false; // the last for a client that claims more than it has
        m_index += piece.length;
        return true;
    }

    /// False when the host's answer to a match ends this search.
    bool collect(const QString &text, qsizetype offset)
    {
        m_matcher->setText(text);
        while (const auto match = m_matcher->findNext()) {
            ZEVTextFinder *finder = m_finder;
            finder->m_foundMatches.append({offset + match->location, match->length});
            finder->m_numberOfMatches = finder->m_foundMatches.size();
            if (m_isObserved && !announce())
                return false;
        }
        return true;
    }

    bool announce()
    {
        m_finder->announceNumberOfMatches();
        return isCurrent() && m_finder->m_client;
    }

    QPointer<ZEVTextFinder> m_finder;
    std::optional<ZEVRegularExpressionMatcher> m_matcher;
    const ZEVTextFinderClient *m_client = nullptr; ///< only compared
    qsizetype m_total = 0;
    qsizetype m_index = 0;
    std::optional<quint64> m_changeStamp;
    bool m_isObserved; // a signal for every match costs a tenth of a search even where nobody listens
};

void ZEVTextFinder::performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression)
{
    beginSearch(expression, m_sliceDuration);
}

void ZEVTextFinder::beginSearch(const std::optional<ZEVRegularExpression> &expression,
                                std::chrono::milliseconds duration)
{
    const auto search = std::make_shared<Search>(this);
    m_search = search; // whichever was under way ends here
    m_isSearching = true;
    *m_expression = expression;
    m_foundMatches.clear();
    m_limitReached = false;
    setNumberOfMatches(std::nullopt);
    if (!search->isCurrent())
        return;
    if (m_client && *m_expression)
        search->begin(**m_expression);
    goOn(search, duration);
}

void ZEVTextFinder::finishSearch()
{
    if (!m_isSearching)
        return;
    const auto search = m_search;
    if (search->textHasChanged())
        beginSearch(std::optional(*m_expression), 0ms);
    else
        goOn(search, 0ms);
}

void ZEVTextFinder::goOnSoon(const std::shared_ptr<Search> &search)
{
    QTimer::singleShot(0, this, [this, search] {
        if (!m_isSearching || !search->isCurrent())
            return;
        if (search->textHasChanged())
            beginSearch(std::optional(*m_expression), m_sliceDuration);
        else
            goOn(search, m_sliceDuration);
    });
}

/// Whoever calls this holds the search, which an observer may end.
void ZEVTextFinder::goOn(const std::shared_ptr<Search> &search, std::chrono::milliseconds duration)
{
    const bool isOver = search->run(duration);
    if (!search->isCurrent())
        return;
    if (isOver)
        endSearch(*search);
    else
        goOnSoon(search);
}

void ZEVTextFinder::endSearch(const Search &search)
{
    m_isSearching = false;
    m_limitReached = search.limitReached();
    if (search.hasBegun())
        setNumberOfMatches(m_foundMatches.size()); // 0, no longer nil, where nothing was found
    if (!search.isCurrent())
        return;
    if (m_textFinderViewController)
        m_textFinderViewController->setSearchLimitReached(m_limitReached);
    Q_EMIT searchPerformed();
}
