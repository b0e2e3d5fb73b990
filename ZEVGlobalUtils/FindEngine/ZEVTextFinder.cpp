// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpressionMatcher.h>

#include <QMetaMethod>
#include <QPointer>

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
        , m_number(++finder->m_searchNumber)
        , m_isObserved(
              finder->m_textFinderViewController
              || finder->isSignalConnected(QMetaMethod::fromSignal(&ZEVTextFinder::numberOfMatchesChanged)))
    {
    }

    bool isCurrent() const { return m_finder && m_finder->m_searchNumber == m_number; }

    void run(const ZEVRegularExpression &expression)
    {
        ZEVRegularExpressionMatcher matcher(expression);
        const qsizetype total = m_finder->m_client->stringLength();
        qsizetype index = 0;
        while (index < total && !matcher.isExhausted()) {
            ZEVRange piece;
            const QString text = m_finder->m_client->stringAtIndex(index, piece);
            if (piece.length <= 0 || !collect(matcher, text, piece.location))
                break;
            if (piece.length > total - index)
                break; // a client that claims more than it has
            index += piece.length;
        }
        if (isCurrent())
            m_finder->m_limitReached = matcher.limitReached();
    }

private:
    /// False when the host's answer to a match ends this search.
    bool collect(ZEVRegularExpressionMatcher &matcher, const QString &text, qsizetype offset)
    {
        matcher.setText(text);
        while (const auto match = matcher.findNext()) {
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
    quint64 m_number;
    bool m_isObserved; // a signal for every match costs a tenth of a search even where nobody listens
};

void ZEVTextFinder::performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression)
{
    Search search(this);
    const QPointer guard(this);
    *m_expression = expression;
    m_foundMatches.clear();
    m_limitReached = false;
    setNumberOfMatches(std::nullopt);
    if (search.isCurrent() && m_client && *m_expression && m_client->stringLength() > 0) {
        search.run(**m_expression);
        if (search.isCurrent())
            setNumberOfMatches(m_foundMatches.size()); // 0, no longer nil, where nothing was found
    }
    if (!guard || !search.isCurrent())
        return;
    if (m_textFinderViewController)
        m_textFinderViewController->setSearchLimitReached(m_limitReached);
    Q_EMIT searchPerformed();
}
