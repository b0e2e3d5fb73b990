// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVSearchPlan_p.h>

#include <algorithm>
#include <bit>

namespace {

constexpr qsizetype BlockSize = 64;

/// A shorter one has so many candidates that asking for each is slower than the matcher's own search.
constexpr qsizetype ShortestBeginning = 3;

bool isAsciiPunctuation(QChar character)
{
    return character > u' ' && character < u'\x7F' && !character.isLetterOrNumber();
}

bool isLiteral(QChar character) { return !QStringView(u"\\*?+[](){}^$|.").contains(character); }

bool isQuantifier(QChar character) { return QStringView(u"*?+{").contains(character); }

bool take(QStringView &rest, QStringView beginning)
{
    if (!rest.startsWith(beginning))
        return false;
    rest = rest.mid(beginning.size());
    return true;
}

/// Takes the next literal character from \a rest: one or two units, of which a backslash may stand before.
QString takeCharacter(QStringView &rest)
{
    const bool isEscaped = rest.size() > 1 && rest[0] == u'\\' && isAsciiPunctuation(rest[1]);
    if (rest.isEmpty() || (!isEscaped && !isLiteral(rest[0])))
        return {};
    if (isEscaped)
        rest = rest.mid(1);
    const bool isPair = rest.size() > 1 && rest[0].isHighSurrogate() && rest[1].isLowSurrogate();
    QString character = rest.left(isPair ? 2 : 1).toString();
    rest = rest.mid(character.size());
    return character;
}

/// The literal at the beginning of \a rest, without a last character that is repeated.
QString takeLiteral(QStringView &rest)
{
    QString literal;
    for (QStringView after = rest; !after.isEmpty(); rest = after) {
        const QString character = takeCharacter(after);
        if (character.isEmpty() || (!after.isEmpty() && isQuantifier(after[0])))
            break;
        literal += character;
    }
    return literal;
}

bool readRun(ZEVSearchPlan &plan, QStringView rest)
{
    const bool isGroup = rest.size() == 5 && rest.startsWith(u'(') && rest.endsWith(u')');
    if (isGroup)
        rest = rest.mid(1, 3);
    if (rest.size() == 3 && rest[0] == u'\\' && rest[2] == u'+')
        plan.run = ZEVUnitClass::forLetter(rest[1].unicode());
    plan.runIsGroup = isGroup && plan.run;
    return plan.run;
}

/// Whether the plan says all that stands behind its literal.
bool readEnd(ZEVSearchPlan &plan, QStringView rest)
{
    plan.endsAtBoundary = rest == u"\\b";
    return rest.isEmpty() || plan.endsAtBoundary || readRun(plan, rest);
}

/// An alternative may do without the literal, and only a search of the matcher's own knows where its last
/// match ended.
bool mayBeginAnywhere(QStringView rest) { return rest.contains(u'|') || rest.contains(u"\\G"); }

} // namespace

ZEVSearchPlan ZEVSearchPlan::forPattern(QStringView pattern, bool caseInsensitive)
{
    ZEVSearchPlan plan;
    QStringView rest = pattern;
    plan.beginsAtBoundary = take(rest, u"\\b");
    const QString literal = takeLiteral(rest);
    if (literal.isEmpty()) {
        if (!plan.beginsAtBoundary && readRun(plan, rest))
            plan.kind = Kind::Runs;
        return plan;
    }
    const bool isAll = readEnd(plan, rest);
    if (!isAll && mayBeginAnywhere(rest))
        return plan;
    plan.literal =
        ZEVFoldedLiteral::make(literal, caseInsensitive,
                               isAll ? ZEVFoldedLiteral::Extent::Whole : ZEVFoldedLiteral::Extent::Beginning);
    if (!plan.literal || (!isAll && plan.literal->length() < ShortestBeginning))
        return plan;
    plan.anchors = plan.literal->anchors();
    plan.kind = isAll ? Kind::Literal : Kind::Candidates;
    return plan;
}

void ZEVSearchWalk::setText(QStringView text)
{
    m_text = text;
    m_block = {-BlockSize, 0};
    m_runs.setText(text);
}

qsizetype ZEVSearchWalk::nextCandidate(qsizetype from)
{
    return m_plan.kind == ZEVSearchPlan::Kind::Runs ? m_runs.next(*m_plan.run, from) : nextLiteral(from);
}

qsizetype ZEVSearchWalk::nextLiteral(qsizetype from)
{
    if (from < m_block.begin + BlockSize) {
        const quint64 bits = m_block.bits >> (from - m_block.begin);
        if (bits)
            return from + std::countr_zero(bits);
        from = m_block.begin + BlockSize;
    }
    if (from >= m_text.size())
        return m_text.size();
    m_block = ZEVTextScan::nextBlock(m_plan.anchors, m_text, from);
    return m_block.bits ? m_block.begin + std::countr_zero(m_block.bits) : m_text.size();
}

ZEVSearchWalk::Answer ZEVSearchWalk::tryCandidate(qsizetype start)
{
    m_begin = start;
    if (m_plan.kind != ZEVSearchPlan::Kind::Runs)
        return tryLiteral(start);
    m_runBegin = start;
    m_end = m_runs.end();
    return Answer::Yes;
}

std::optional<ZEVRange> ZEVSearchWalk::group() const
{
    if (!m_plan.runIsGroup)
        return std::nullopt;
    return ZEVRange{m_runBegin, m_end - m_runBegin};
}

ZEVSearchWalk::Answer ZEVSearchWalk::tryLiteral(qsizetype start)
{
    const auto literalEnd = m_plan.literal->endOfMatch(m_text, start);
    if (!literalEnd)
        return Answer::No;
    if (m_plan.kind == ZEVSearchPlan::Kind::Candidates)
        return Answer::AskMatcher;
    const Answer begins = m_plan.beginsAtBoundary ? boundaryAt(start) : Answer::Yes;
    const Answer ends = m_plan.endsAtBoundary ? boundaryAt(*literalEnd) : Answer::Yes;
    const qsizetype end = m_plan.run ? endOfRun(*literalEnd) : *literalEnd;
    if (begins == Answer::No || ends == Answer::No || (m_plan.run && end == *literalEnd))
        return Answer::No;
    if (begins == Answer::AskMatcher || ends == Answer::AskMatcher)
        return Answer::AskMatcher;
    m_runBegin = *literalEnd;
    m_end = end;
    return Answer::Yes;
}

/// Between ASCII characters a boundary is where a word begins or ends; among others, marks and format
/// characters belong to what they follow, and that is the matcher's to know.
ZEVSearchWalk::Answer ZEVSearchWalk::boundaryAt(qsizetype position) const
{
    const auto isForeign = [this](qsizetype i) { return m_text[i] > QChar(0x7F); };
    const auto isOfWord = [this](qsizetype i) { return m_text[i].isLetterOrNumber() || m_text[i] == u'_'; };
    const bool hasBefore = position > 0;
    const bool hasAfter = position < m_text.size();
    if ((hasBefore && isForeign(position - 1)) || (hasAfter && isForeign(position)))
        return Answer::AskMatcher;
    const bool isBetween = (hasBefore && isOfWord(position - 1)) != (hasAfter && isOfWord(position));
    return isBetween ? Answer::Yes : Answer::No;
}

qsizetype ZEVSearchWalk::endOfRun(qsizetype start) const
{
    qsizetype end = start;
    while (end < m_text.size() && m_plan.run->containsUnitAt(m_text, end))
        ++end;
    return end;
}
