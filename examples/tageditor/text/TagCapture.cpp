// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TagCapture.h>

#include <tageditor/find/TagTokens.h>

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureGroup.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

TagCapture::TagCapture(const QVariantList &pattern)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setMatchingType(ZEVFindPanelQuery::MatchesContents);
    const auto expression = query.searchExpression(nullptr);
    if (!query.hasPattern() || !expression)
        return;
    m_matcher = std::make_unique<ZEVRegularExpressionMatcher>(*expression);
    for (const ZEVOrvCaptureGroup &group : query.captureGroups()) {
        if (const auto field = TagTokens::fieldOf(group.patternItem))
            m_groups.push_back({*field, int(group.index)});
    }
}

std::optional<TagCapture::Captured> TagCapture::captured(const QString &text)
{
    if (!m_matcher)
        return std::nullopt;
    m_matcher->setText(text);
    if (!m_matcher->findNext())
        return std::nullopt;
    Captured captured;
    for (const auto &[field, number] : m_groups) {
        const ZEVRange range = m_matcher->rangeOfGroup(number).value_or(ZEVRange());
        captured.append({field, text.sliced(range.location, range.length).trimmed()});
    }
    return captured;
}
