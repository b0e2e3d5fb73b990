// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVReplacementTemplate.h>

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureGroup.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPattern_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

#include <QHash>

#include <algorithm>

namespace {

/// An archive keeps no templates, so a tab or a line break that comes from one is told by its expression.
std::optional<QString> ownTemplate(const ZEVPatternItem &item)
{
    if (!item.isDummy())
        return std::nullopt;
    if (item.regexTemplateString() != item.regexString())
        return item.regexTemplateString();
    for (const ZEVPatternItem &character : {ZEVPatternItem::tab(), ZEVPatternItem::lineBreak()})
        if (item.regexString() == character.regexString())
            return character.regexTemplateString();
    return std::nullopt;
}

/// The group of the \a occurrence-th of the items that equal \a item, or else of their last.
std::optional<int> groupOfItem(const ZEVPatternItem &item, int occurrence,
                               const QList<ZEVOrvCaptureGroup> &groups)
{
    std::optional<int> found;
    for (const ZEVOrvCaptureGroup &group : groups) {
        if (group.patternItem != item)
            continue;
        found = int(group.index);
        if (occurrence-- == 0)
            break;
    }
    return found;
}

QString formattedValue(const std::optional<ZEVOrvCaptureMatch> &match)
{
    if (!match)
        return {};
    const auto name = match->patternItem.valueTransformerName();
    const auto transformer = name ? ZEVValueTransformer::valueTransformerForName(*name) : nullptr;
    return (transformer ? transformer->transformedValue(match->value) : match->value).toString();
}

QString textOfGroup(int group, const ZEVRegularExpressionMatcher &matcher, QStringView text)
{
    const auto range = matcher.rangeOfGroup(group);
    return range ? text.mid(range->location, range->length).toString() : QString();
}

/// "$12" is group 12 or, where there are fewer, group 1 and a 2.
QString textOfReference(QStringView digits, const ZEVRegularExpressionMatcher &matcher, QStringView text)
{
    qsizetype length = 1;
    while (length < digits.size() && digits.left(length + 1).toInt() <= matcher.numberOfCaptureGroups())
        ++length;
    return textOfGroup(digits.left(length).toInt(), matcher, text) + digits.mid(length);
}

} // namespace

ZEVReplacementTemplate::ZEVReplacementTemplate(const QVariantList &replacePattern,
                                               const QList<ZEVOrvCaptureGroup> &captureGroups)
{
    QHash<ZEVPatternItem, int> occurrences;
    for (const QVariant &element : replacePattern) {
        const ZEVPatternItem *item = ZEVPattern::item(element);
        if (const QString *text = ZEVPattern::literalText(element))
            appendText(*text);
        else if (const auto regexTemplate = item ? ownTemplate(*item) : std::nullopt)
            appendTemplate(*regexTemplate);
        else if (const auto group =
                     item ? groupOfItem(*item, occurrences[*item]++, captureGroups) : std::nullopt)
            m_parts.emplace_back(*group);
        else if (item && !item->isDummy())
            m_parts.emplace_back(*item);
    }
}

void ZEVReplacementTemplate::appendText(QStringView text)
{
    if (m_parts.empty() || !std::holds_alternative<QString>(m_parts.back()))
        m_parts.emplace_back(QString());
    std::get<QString>(m_parts.back()) += text;
}

void ZEVReplacementTemplate::appendTemplate(QStringView regexTemplate)
{
    while (!regexTemplate.isEmpty()) {
        const auto end = std::find_if_not(regexTemplate.begin() + 1, regexTemplate.end(),
                                          [](QChar c) { return c >= u'0' && c <= u'9'; });
        const qsizetype length = end - regexTemplate.begin();
        if (regexTemplate.front() == u'$' && length > 1) {
            m_parts.emplace_back(Reference{regexTemplate.mid(1, length - 1).toString()});
            regexTemplate = regexTemplate.mid(length);
            continue;
        }
        if (regexTemplate.front() == u'\\' && regexTemplate.size() > 1)
            regexTemplate = regexTemplate.mid(1);
        appendText(regexTemplate.left(1));
        regexTemplate = regexTemplate.mid(1);
    }
}

QString ZEVReplacementTemplate::replacement(const ZEVRegularExpressionMatcher &matcher, QStringView text,
                                            const PlaceholderValue &placeholderValue) const
{
    QString result;
    for (const Part &part : m_parts) {
        if (const auto *literal = std::get_if<QString>(&part))
            result += *literal;
        else if (const auto *group = std::get_if<int>(&part))
            result += textOfGroup(*group, matcher, text);
        else if (const auto *reference = std::get_if<Reference>(&part))
            result += textOfReference(reference->digits, matcher, text);
        else if (const auto *item = std::get_if<ZEVPatternItem>(&part); placeholderValue)
            result += formattedValue(placeholderValue(*item));
    }
    return result;
}
