// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindBarContainer.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderClient.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextSearch_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QMetaMethod>

#include <algorithm>
#include <iterator>

using namespace std::chrono_literals;

ZEVTextFinderClient::~ZEVTextFinderClient() = default;
ZEVTextFinderUserInterfaceDelegate::~ZEVTextFinderUserInterfaceDelegate() = default;

void ZEVTextFinderUserInterfaceDelegate::search(const ZEVFindRequest &request)
{
    performSearchAgainstExpression(request.expression);
}

void ZEVTextFinderUserInterfaceDelegate::customizeFindMenuBeforeDisplay(ZEVTextFinderUserInterface *, QMenu *)
{
}

ZEVTextFinderUserInterface::~ZEVTextFinderUserInterface()
{
    if (m_finder)
        m_finder->removeInterface(this);
}

ZEVTextFinder::ZEVTextFinder(QObject *parent)
    : QObject(parent)
{
}

ZEVTextFinder::~ZEVTextFinder()
{
    m_search.reset();
    for (ZEVTextFinderUserInterface *findInterface : std::as_const(m_interfaces))
        findInterface->m_finder = nullptr;
}

void ZEVTextFinder::setFindBarContainer(ZEVFindBarContainer *container)
{
    if (container == m_findBarContainer)
        return;
    if (ZEVFindBarContainer *old = std::exchange(m_findBarContainer, container))
        old->setFinder(nullptr);
    if (container)
        container->setFinder(this);
}

ZEVTextFinderUserInterface *ZEVTextFinder::textFinderViewController()
{
    if (!m_textFinderViewController)
        setTextFinderViewController(ZEVTextFinderUserInterface::makeFindBar());
    return m_textFinderViewController.get();
}

void ZEVTextFinder::setTextFinderViewController(std::unique_ptr<ZEVTextFinderUserInterface> controller)
{
    m_textFinderViewController = std::move(controller);
    if (m_textFinderViewController)
        addInterface(m_textFinderViewController.get());
}

void ZEVTextFinder::addInterface(ZEVTextFinderUserInterface *findInterface)
{
    if (m_interfaces.contains(findInterface))
        return;
    if (findInterface->m_finder)
        findInterface->m_finder->removeInterface(findInterface);
    findInterface->m_finder = this;
    findInterface->setDelegate(this);
    m_interfaces.append(findInterface);
    if (!m_request.asker)
        findInterface->setNumberOfMatches(m_numberOfMatches);
}

void ZEVTextFinder::removeInterface(ZEVTextFinderUserInterface *findInterface)
{
    if (!m_interfaces.removeOne(findInterface))
        return;
    findInterface->m_finder = nullptr;
    if (m_request.asker == findInterface)
        m_request.asker = nullptr;
}

ZEVTextFinderUserInterface *ZEVTextFinder::currentInterface() const
{
    return m_request.asker ? m_request.asker : m_textFinderViewController.get();
}

QVariantList ZEVTextFinder::replacePattern() const
{
    const ZEVTextFinderUserInterface *findInterface = currentInterface();
    return findInterface ? findInterface->replacePattern() : QVariantList();
}

bool ZEVTextFinder::wrapAround() const
{
    const ZEVTextFinderUserInterface *findInterface = currentInterface();
    return !findInterface || findInterface->wrapAround();
}

/// Every interface runs code of the host, which may take any of them away, or the finder.
void ZEVTextFinder::tellInterfaces(const std::function<void(ZEVTextFinderUserInterface &)> &tell)
{
    const QPointer guard(this);
    for (ZEVTextFinderUserInterface *findInterface : QList(m_interfaces)) {
        const bool isAsked = !m_request.asker || m_request.asker == findInterface;
        if (isAsked && m_interfaces.contains(findInterface))
            tell(*findInterface);
        if (!guard)
            return;
    }
}

void ZEVTextFinder::tellCount()
{
    if (m_request.asker)
        m_request.asker->setNumberOfMatches(m_numberOfMatches);
    else if (!m_interfaces.isEmpty())
        tellInterfaces([number = m_numberOfMatches](auto &one) { one.setNumberOfMatches(number); });
}

void ZEVTextFinder::setNumberOfMatches(std::optional<qsizetype> number)
{
    if (m_numberOfMatches == number)
        return;
    m_numberOfMatches = number;
    announceNumberOfMatches();
}

void ZEVTextFinder::announceNumberOfMatches()
{
    const QPointer guard(this);
    tellCount();
    if (guard)
        Q_EMIT numberOfMatchesChanged();
}

void ZEVTextFinder::setMarksMatches(bool marks)
{
    if (marks == m_marksMatches)
        return;
    m_marksMatches = marks;
    Q_EMIT marksMatchesChanged();
}

void ZEVTextFinder::performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression)
{
    search({{}, expression, nullptr});
}

void ZEVTextFinder::search(const ZEVFindRequest &request)
{
    m_marksMatches = true; // the search itself has them drawn
    beginSearch(request, m_sliceDuration);
}

void ZEVTextFinder::searchAgain() { beginSearch(lastRequest(), m_sliceDuration); }

/// The count of another interface is not that of its own pattern any more.
void ZEVTextFinder::prepareSearch()
{
    const QPointer guard(this);
    if (m_request.asker && m_interfaces.size() > 1) {
        for (ZEVTextFinderUserInterface *other : QList(m_interfaces)) {
            if (guard && other != m_request.asker && m_interfaces.contains(other))
                other->setNumberOfMatches(std::nullopt);
        }
    }
    if (guard)
        setNumberOfMatches(std::nullopt);
}

void ZEVTextFinder::beginSearch(const ZEVFindRequest &request, std::chrono::milliseconds duration)
{
    const QPointer guard(this);
    ZEVFindRequest newRequest = request; // which may be the last one
    if (!m_interfaces.contains(newRequest.asker))
        newRequest.asker = nullptr;
    m_request = std::move(newRequest);
    // Whichever was under way ends here, and one that an observer begins now ends this one.
    const auto marker = m_search = std::make_shared<ZEVTextSearch>(nullptr, std::nullopt);
    m_isSearching = true;
    m_foundMatches.clear();
    m_limitReached = false;
    prepareSearch();
    if (guard && m_search == marker)
        Q_EMIT searchBegins();
    if (!guard || m_search != marker)
        return;
    const auto search = m_search = std::make_shared<ZEVTextSearch>(m_client, m_request.expression);
    m_isObserved = !m_interfaces.isEmpty()
        || isSignalConnected(QMetaMethod::fromSignal(&ZEVTextFinder::numberOfMatchesChanged));
    goOn(search, duration);
}

/// Every announced match runs code of the host, after which the finder may be gone, busy with a newer search,
/// or without its client.
bool ZEVTextFinder::addMatches(const ZEVTextSearch *search, std::span<const ZEVRange> matches)
{
    if (!m_isObserved) {
        std::copy(matches.begin(), matches.end(), std::back_inserter(m_foundMatches));
        m_numberOfMatches = m_foundMatches.size();
        return true;
    }
    const QPointer guard(this);
    const ZEVTextFinderClient *client = m_client;
    for (const ZEVRange &match : matches) {
        m_foundMatches.append(match);
        m_numberOfMatches = m_foundMatches.size();
        announceNumberOfMatches();
        if (!guard || m_search.get() != search || m_client != client)
            return false;
    }
    return true;
}

/// Whoever calls this holds the search, which an observer may end.
void ZEVTextFinder::goOn(const std::shared_ptr<ZEVTextSearch> &search, std::chrono::milliseconds duration)
{
    const QPointer guard(this);
    const auto state =
        search->run(duration, [&](const auto &matches) { return addMatches(search.get(), matches); });
    if (!guard || m_search != search)
        return;
    if (state != ZEVTextSearch::State::Unfinished)
        return endSearch(search);
    tellInterfaces([](auto &one) { one.setSearching(true); });
    if (guard && m_search == search)
        goOnInBackground(search);
}

void ZEVTextFinder::goOnInBackground(const std::shared_ptr<ZEVTextSearch> &search)
{
    // Asking the client for the pieces is all that still takes this thread's time.
    search->matchInBackground(std::max(m_sliceDuration / 3, 1ms), this, [this, weak = std::weak_ptr(search)] {
        const auto current = weak.lock();
        if (current && current == m_search && m_isSearching && current->hasBackgroundMatches())
            takeBackgroundMatches(current);
    });
}

void ZEVTextFinder::takeBackgroundMatches(const std::shared_ptr<ZEVTextSearch> &search)
{
    if (!isTextUnchanged())
        return searchAgain();
    const QPointer guard(this);
    const auto state =
        search->takeBackgroundMatches([&](const auto &matches) { return addMatches(search.get(), matches); });
    if (!guard || m_search != search)
        return;
    if (state == ZEVTextSearch::State::Unfinished)
        goOnInBackground(search);
    else
        endSearch(search);
}

void ZEVTextFinder::finishSearch()
{
    if (!m_isSearching)
        return;
    const auto search = m_search;
    if (isTextUnchanged())
        goOn(search, 0ms);
    else
        beginSearch(lastRequest(), 0ms);
}

bool ZEVTextFinder::stopSearch()
{
    if (!m_isSearching)
        return false;
    const QPointer guard(this);
    m_isSearching = false;
    m_search->giveUpBackground();
    tellInterfaces([](auto &one) { one.setSearching(false); });
    if (guard)
        Q_EMIT searchPerformed();
    return true;
}

bool ZEVTextFinder::isTextUnchanged() const { return m_search && m_search->isOfTextOf(m_client); }

qsizetype ZEVTextFinder::stringLength() const { return m_search ? m_search->stringLength() : 0; }

void ZEVTextFinder::setFoundMatches(const QList<ZEVRange> &matches)
{
    const QPointer guard(this);
    m_foundMatches = QList(matches);
    m_search = std::make_shared<ZEVTextSearch>(m_client, m_request.expression);
    m_isSearching = false;
    setNumberOfMatches(m_foundMatches.size());
    if (guard)
        Q_EMIT searchPerformed();
}

void ZEVTextFinder::endSearch(const std::shared_ptr<ZEVTextSearch> &search)
{
    const QPointer guard(this);
    m_isSearching = false;
    m_limitReached = search->limitReached();
    if (search->hasBegun())
        setNumberOfMatches(m_foundMatches.size()); // 0, no longer nil, where nothing was found
    if (!guard || m_search != search)
        return;
    tellInterfaces([limitReached = m_limitReached](auto &one) {
        one.setSearching(false);
        one.setSearchLimitReached(limitReached);
    });
    if (guard && m_search == search)
        Q_EMIT searchPerformed();
}
