// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureGroup.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPattern_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <QHash>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct MatchingTypeTraits {
    QStringView title;
    QStringView before;
    QStringView after;
};

constexpr std::array<MatchingTypeTraits, 6> MatchingTypes{{
    {u"Contains", u"", u""},
    {u"Begins With", u"^", u""},
    {u"Matches Word", u"\\b", u"\\b"},
    {u"Ends With", u"", u"$"},
    {u"Regular Expression", u"", u""},
    {u"Matches Contents", u"^", u"$"},
}};

bool isMatchingType(qint64 value) { return value >= 0 && value < qint64(MatchingTypes.size()); }

QString fragment(const QVariant &element, bool literalTextIsSyntax)
{
    if (const ZEVPatternItem *item = ZEVPattern::item(element))
        return item->regexString().value_or(QString());
    if (const QString *text = ZEVPattern::literalText(element))
        return literalTextIsSyntax ? *text : ZEVRegularExpression::escapedPatternForString(*text);
    return {};
}

ZEVRegularExpression::Option optionFor(bool caseInsensitive)
{
    return caseInsensitive ? ZEVRegularExpression::CaseInsensitive : ZEVRegularExpression::NoOptions;
}

/// The empty group that stands before or behind the item of that number, only for counting.
QString boundName(QStringView place, qsizetype item) { return u"zevItem" + place + QString::number(item); }
QString bound(QStringView place, qsizetype item) { return u"(?<" + boundName(place, item) + u">)"; }

size_t elementHash(const QVariant &element)
{
    if (const ZEVPatternItem *item = ZEVPattern::item(element))
        return item->hash();
    const QString *text = ZEVPattern::literalText(element);
    return text ? qHash(*text) : 0;
}

void registerForArchives()
{
    ZEVKeyedArchiver::registerClass<ZEVFindPanelQuery>(u"ZEVFindPanelQuery"_s);
    ZEVKeyedUnarchiver::registerClass<ZEVFindPanelQuery>(u"ZEVFindPanelQuery"_s);
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerForArchives)

std::optional<QString> ZEVFindPanelQuery::titleForMatchingType(qint64 matchingType)
{
    if (!isMatchingType(matchingType))
        return std::nullopt;
    return ZEVGlobalHelper::localizedStringForKey(MatchingTypes.at(matchingType).title);
}

QString ZEVFindPanelQuery::expressionPattern() const
{
    QString pattern;
    for (const QVariant &element : m_searchPattern.value_or(QVariantList()))
        pattern += fragment(element, m_matchingType == RegularExpression);
    if (!isMatchingType(m_matchingType))
        return pattern;
    const MatchingTypeTraits &type = MatchingTypes.at(m_matchingType);
    return type.before + pattern + type.after;
}

std::optional<ZEVRegularExpression> ZEVFindPanelQuery::searchExpression() const
{
    ZEVError error;
    auto expression = searchExpression(&error);
    if (!expression && hasPattern())
        ZEVErrorPresentation::presentError(error);
    return expression;
}

std::optional<ZEVRegularExpression> ZEVFindPanelQuery::searchExpression(ZEVError *error) const
{
    if (!hasPattern())
        return std::nullopt;
    return ZEVRegularExpression::compile(expressionPattern(), optionFor(m_caseInsensitiveSearch), error);
}

/// Named groups around every item tell its number in whatever surrounds it: escapes, sets, quotations and
/// groups that the user's own text opens before a token and closes behind it. Only the engine reads all those
/// right.
QList<ZEVOrvCaptureGroup> ZEVFindPanelQuery::captureGroups() const
{
    QString pattern;
    QList<ZEVPatternItem> items;
    for (const QVariant &element : m_searchPattern.value_or(QVariantList())) {
        const QString text = fragment(element, m_matchingType == RegularExpression);
        if (const ZEVPatternItem *item = ZEVPattern::item(element)) {
            pattern += bound(u"Begin", items.size()) + text + bound(u"End", items.size());
            items.append(*item);
        } else {
            pattern += text;
        }
    }
    const auto expression = ZEVRegularExpression::compile(pattern);
    QList<ZEVOrvCaptureGroup> groups;
    int boundsBefore = 0;
    for (qsizetype n = 0; expression && n < items.size(); ++n) {
        const auto begin = expression->numberOfCaptureGroup(boundName(u"Begin", n));
        const auto end = expression->numberOfCaptureGroup(boundName(u"End", n));
        if (begin && end && *end > *begin + 1)
            groups.append({items.at(n), *begin - boundsBefore});
        boundsBefore += int(begin.has_value()) + int(end.has_value());
    }
    return groups;
}

ZEVAttributedString ZEVFindPanelQuery::attributedTitle() const
{
    QString opening = titleForMatchingType(m_matchingType).value_or(ZEVPattern::NilText);
    if (m_scope)
        opening = m_scope->title().value_or(ZEVPattern::NilText) + u", " + opening;
    const QString suffix = m_caseInsensitiveSearch
        ? QString()
        : u", " + ZEVGlobalHelper::localizedStringForKey(u"Case Sensitive");

    ZEVAttributedString title(opening + u" \"");
    title.append(
        ZEVArrayPatternDisplaySupport::patternDisplayString(m_searchPattern.value_or(QVariantList())));
    title.append(u'"' + suffix);
    return title;
}

bool ZEVFindPanelQuery::isEqualToQuery(const ZEVFindPanelQuery &other) const
{
    return m_caseInsensitiveSearch == other.m_caseInsensitiveSearch && m_matchingType == other.m_matchingType
        && m_scope == other.m_scope && m_searchPattern == other.m_searchPattern;
}

size_t ZEVFindPanelQuery::hash() const
{
    size_t hash = m_scope ? qHash(m_scope.get()) : 0;
    hash ^= size_t(m_caseInsensitiveSearch) ^ static_cast<size_t>(m_matchingType);
    for (const QVariant &element : m_searchPattern.value_or(QVariantList()))
        hash ^= elementHash(element);
    return hash;
}

ZEVFindPanelQuery ZEVFindPanelQuery::copy() const
{
    ZEVFindPanelQuery copy = *this;
    if (m_scope)
        copy.m_scope = m_scope->copy();
    return copy;
}

void ZEVFindPanelQuery::encodeWithCoder(ZEVKeyedArchiver &archiver) const
{
    if (const auto *scope = dynamic_cast<const ZEVKeyedCoding *>(m_scope.get()))
        archiver.encodeObject(*scope, u"scope");
    if (m_searchPattern)
        archiver.encodeObject(*m_searchPattern, u"searchPattern");
    archiver.encodeBool(m_caseInsensitiveSearch, u"caseInsensitiveSearch");
    archiver.encodeBool((m_matchingType & 0xFF) != 0, u"matchingType");
}

ZEVFindPanelQuery::ZEVFindPanelQuery(ZEVKeyedUnarchiver &unarchiver)
    : m_scope(unarchiver.decodeObject(u"scope").value<std::shared_ptr<ZEVFindPanelScope>>())
    , m_searchPattern(unarchiver.decodeList(u"searchPattern"))
    , m_matchingType(unarchiver.decodeBool(u"matchingType") ? BeginsWith : Contains)
    , m_caseInsensitiveSearch(unarchiver.decodeBool(u"caseInsensitiveSearch"))
{
}
