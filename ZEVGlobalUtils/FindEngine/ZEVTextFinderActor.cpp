// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <algorithm>

using namespace ZEVFindActionNumber;

namespace {

/// Between searches that nobody has asked for, in milliseconds.
constexpr qint64 Pause = 250;

} // namespace

ZEVTextFinderActor::ZEVTextFinderActor(ZEVTextFinder *finder, QObject *parent)
    : QObject(parent)
    , m_finder(finder)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ZEVTextFinderActor::searchAgain);
    connect(finder, &ZEVTextFinder::actionLeftToHost, this, &ZEVTextFinderActor::performAction);
}

ZEVTextFinderEditableClient *ZEVTextFinderActor::client() const
{
    return m_finder ? dynamic_cast<ZEVTextFinderEditableClient *>(m_finder->client()) : nullptr;
}

const QList<ZEVRange> &ZEVTextFinderActor::matches() const { return m_finder->foundMatches(); }

void ZEVTextFinderActor::performAction(qint64 action)
{
    const bool moves = action == NextMatch || action == PreviousMatch;
    if (!(moves && hasMatchesToMoveTo()) && !searchIfChanged())
        return;
    switch (action) {
    case NextMatch:
        return step(1);
    case PreviousMatch:
        return step(-1);
    case ReplaceAll:
        apply(preview());
        return;
    case Replace:
        return replaceSelectedMatch(false);
    case ReplaceAndFind:
        return replaceSelectedMatch(true);
    case ReplaceAllInSelection:
        apply(previewInSelection());
        return;
    case SelectAll:
        return client()->setSelectedRanges(matches());
    case SelectAllInSelection:
        return client()->setSelectedRanges(matchesInSelection());
    default:
        return;
    }
}

bool ZEVTextFinderActor::wrapsAround() const { return m_wrapsAround && m_finder && m_finder->wrapAround(); }

bool ZEVTextFinderActor::hasMatchesToMoveTo() const
{
    return client() && m_finder->isSearching() && m_finder->isTextUnchanged() && !matches().isEmpty();
}

/// Observers of a search may do anything.
bool ZEVTextFinderActor::searchIfChanged()
{
    if (!client())
        return false;
    const QPointer guard(this);
    m_finder->finishSearch();
    if (guard && client() && !m_finder->isTextUnchanged())
        m_finder->searchAgain();
    if (guard && m_finder)
        m_finder->finishSearch();
    return guard && client() && m_finder->isTextUnchanged();
}

void ZEVTextFinderActor::searchAgainSoon()
{
    if (m_timer.isActive())
        return;
    const qint64 passed = m_sinceSearch.isValid() ? m_sinceSearch.elapsed() : Pause;
    m_timer.start(int(std::max<qint64>(Pause - passed, 0)));
}

/// A search that is going on finds out for itself that the text has changed.
void ZEVTextFinderActor::searchAgain()
{
    m_sinceSearch.start();
    if (client() && !m_finder->isSearching() && !m_finder->isTextUnchanged())
        m_finder->searchAgain();
}

qsizetype ZEVTextFinderActor::firstMatchAt(qsizetype location) const
{
    return std::ranges::lower_bound(matches(), location, {}, &ZEVRange::location) - matches().begin();
}

/// The number of the match that the selection is, or -1.
qsizetype ZEVTextFinderActor::selectedMatch() const
{
    const QList<ZEVRange> selection = client()->selectedRanges();
    if (selection.size() != 1)
        return -1;
    const qsizetype number = firstMatchAt(selection.first().location);
    return number < matches().size() && matches().at(number) == selection.first() ? number : -1;
}

/// From a selection that is no match, the way leads from its beginning, so that a selected cell or paragraph
/// has its own matches found first.
void ZEVTextFinderActor::step(int direction)
{
    const qsizetype count = matches().size();
    if (count == 0)
        return;
    const QList<ZEVRange> selection = client()->selectedRanges();
    const qsizetype selected = selectedMatch();
    const qsizetype start = firstMatchAt(selection.isEmpty() ? 0 : selection.first().location);
    const qsizetype next = selected >= 0 || direction < 0 ? start + direction : start;
    const bool wraps = next < 0 || next >= count;
    if (wraps && !wrapsAround())
        return;
    select((next + count) % count, wraps);
}

void ZEVTextFinderActor::select(qsizetype match, bool wraps)
{
    const QPointer guard(this);
    client()->setSelectedRanges({matches().at(match)});
    if (guard && client())
        client()->scrollSelectionToVisible();
    if (guard && wraps)
        Q_EMIT wrappedAround();
}

/// Both lists are in text order, so one walk does.
QList<ZEVRange> ZEVTextFinderActor::matchesInSelection() const
{
    const QList<ZEVRange> selection = client()->selectedRanges();
    QList<ZEVRange> result;
    auto range = selection.begin();
    for (const ZEVRange &match : matches()) {
        while (range != selection.end() && range->end() < match.end())
            ++range;
        if (range == selection.end())
            break;
        if (range->length > 0 && match.location >= range->location)
            result.append(match);
    }
    return result;
}
