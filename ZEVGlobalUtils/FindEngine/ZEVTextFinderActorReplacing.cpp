// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureGroup.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>

using namespace ZEVFindActionNumber;

/// One run over the pieces that hold matches. Each is matched anew, which tells what the groups captured and
/// lets go of any range that is no match of the text as it is.
class ZEVTextFinderActor::Replacer {
public:
    Replacer(const ZEVTextFinderActor &actor, const QList<ZEVRange> &matches)
        : m_actor(actor)
        , m_client(*actor.client())
        , m_matcher(*actor.m_finder->expression())
        , m_template(actor.m_finder->replacePattern(), actor.m_finder->lastRequest().query.captureGroups())
        , m_matches(matches)
        , m_match(m_matches.begin())
    {
    }

    QList<ZEVTextReplacement> run()
    {
        while (m_match != m_matches.end() && !m_matcher.isExhausted()) {
            ZEVRange piece;
            const QString text = m_client.stringAtIndex(m_match->location, piece);
            if (piece.length <= 0)
                break;
            replaceIn(text, piece.location);
            skipTo(piece.end());
        }
        return m_result;
    }

private:
    void skipTo(qsizetype location)
    {
        while (m_match != m_matches.end() && m_match->location < location)
            ++m_match;
    }

    void replaceIn(const QString &text, qsizetype offset)
    {
        m_matcher.setText(text);
        while (const auto found = m_matcher.findNext()) {
            const ZEVRange range{offset + found->location, found->length};
            skipTo(range.location);
            if (m_match == m_matches.end())
                return;
            if (*m_match == range && m_client.isEditable(range))
                m_result.append({range, text.mid(found->location, found->length), replacement(range, text)});
        }
    }

    QString replacement(const ZEVRange &range, const QString &text) const
    {
        const auto value = [this, &range](const ZEVPatternItem &item) {
            return m_actor.m_placeholderValue ? m_actor.m_placeholderValue(item, range) : std::nullopt;
        };
        return m_template.replacement(m_matcher, text, value);
    }

    const ZEVTextFinderActor &m_actor;
    const ZEVTextFinderEditableClient &m_client;
    ZEVRegularExpressionMatcher m_matcher;
    const ZEVReplacementTemplate m_template;
    const QList<ZEVRange> m_matches;
    QList<ZEVRange>::const_iterator m_match;
    QList<ZEVTextReplacement> m_result;
};

ZEVReplacementPreview ZEVTextFinderActor::previewOf(const QList<ZEVRange> &matches) const
{
    if (matches.isEmpty())
        return {};
    return {Replacer(*this, matches).run(), client()->changeStamp()};
}

ZEVReplacementPreview ZEVTextFinderActor::preview()
{
    return searchIfChanged() ? previewOf(matches()) : ZEVReplacementPreview();
}

ZEVReplacementPreview ZEVTextFinderActor::previewInSelection()
{
    return searchIfChanged() ? previewOf(matchesInSelection()) : ZEVReplacementPreview();
}

bool ZEVTextFinderActor::apply(const ZEVReplacementPreview &preview)
{
    return client() && client()->changeStamp() == preview.changeStamp
        && replace(preview.replacements, ReplaceAll);
}

/// The client may run anything of the host's, an alert that ends with the window's end for one.
bool ZEVTextFinderActor::replace(const QList<ZEVTextReplacement> &replacements, qint64 action)
{
    if (replacements.isEmpty()
        || !client()->replace(replacements, ZEVTextFinder::localizedNameForAction(action)))
        return false;
    const QPointer guard(this);
    searchIfChanged();
    if (guard)
        Q_EMIT replaced(replacements.size());
    return true;
}

void ZEVTextFinderActor::replaceSelectedMatch(bool findsNext)
{
    const qsizetype selected = selectedMatch();
    if (selected < 0)
        return step(1);
    const QList<ZEVTextReplacement> replacements = previewOf({matches().at(selected)}).replacements;
    if (replacements.isEmpty())
        return findsNext ? step(1) : void();
    const QPointer guard(this);
    if (replace(replacements, Replace) && guard && client())
        selectBehind(replacements.first(), findsNext);
}

/// The next match is never looked for within what was put in, nor, after a match of no length, at its end,
/// where the same place would match for ever.
void ZEVTextFinderActor::selectBehind(const ZEVTextReplacement &replacement, bool findsNext)
{
    const ZEVRange end{replacement.range.location + replacement.after.size(), 0};
    qsizetype next = firstMatchAt(end.location);
    if (replacement.range.length == 0 && next < matches().size() && matches().at(next) == end)
        ++next;
    const bool wraps = next == matches().size() && wrapsAround() && !matches().isEmpty()
        && matches().first().location < replacement.range.location;
    if (!findsNext || (next == matches().size() && !wraps))
        return client()->setSelectedRanges({end});
    select(wraps ? 0 : next, wraps);
}
