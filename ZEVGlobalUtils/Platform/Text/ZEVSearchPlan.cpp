// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVSearchPlan_p.h>

#include <algorithm>
#include <bit>

namespace {

using ZEVTextScan::BlockSize;

/// A shorter one has so many candidates that asking for each is slower than the matcher's own search.
constexpr qsizetype ShortestBeginning = 3;

/// Whoever walks may have to end between stretches, and a long literal takes long to try.
constexpr unsigned MostAttempts = 256;

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

bool readAddress(ZEVSearchPlan &plan, QStringView pattern)
{
    if (pattern == ZEVEmailScan::Expression) {
        plan.kind = ZEVSearchPlan::Kind::Email;
    } else if (pattern == ZEVWebAddressScan::Expression) {
        plan.kind = ZEVSearchPlan::Kind::WebAddress;
        plan.anchors = ZEVWebAddressScan::anchors();
    }
    return plan.kind != ZEVSearchPlan::Kind::General;
}

/// An alternative may do without the literal, and only a search of the matcher's own knows where its last
/// match ended.
bool mayBeginAnywhere(QStringView rest) { return rest.contains(u'|') || rest.contains(u"\\G"); }

} // namespace

ZEVSearchPlan ZEVSearchPlan::forPattern(QStringView pattern, bool caseInsensitive)
{
    ZEVSearchPlan plan;
    plan.caseInsensitive = caseInsensitive;
    if (readAddress(plan, pattern))
        return plan;
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
    plan.isFixedText = rest.isEmpty() && !plan.beginsAtBoundary && plan.literal->isFixed();
    return plan;
}

void ZEVSearchWalk::setText(QStringView text)
{
    m_text = text;
    m_position = m_scanned = 0;
    m_edgeCount = m_blockCount = m_block = 0;
    m_addresses.setText(text);
}

ZEVSearchWalk::State ZEVSearchWalk::goOn()
{
    const bool isInRun = m_edgeCount % 2;
    if (isInRun)
        m_edges[0] = m_edges[m_edgeCount - 1];
    m_edgeCount = isInRun;
    m_attempts = 1;
    switch (m_plan.kind) {
    case ZEVSearchPlan::Kind::Runs:
        return goOnWithRuns();
    case ZEVSearchPlan::Kind::Email:
        return goOnWithEmail();
    default:
        return goOnWithCandidates();
    }
}

/// A run begins or ends where a bit differs from the one before it.
ZEVSearchWalk::State ZEVSearchWalk::goOnWithRuns()
{
    const qsizetype stop = std::min(m_text.size(), m_scanned + ZEVTextScan::LongestStretch);
    for (; m_scanned < stop && hasRoomFor(BlockSize); m_scanned += BlockSize) {
        const quint64 bits = m_plan.run->bitsAt(m_text, m_scanned);
        qsizetype *edge = m_edges.data() + m_edgeCount;
        for (quint64 edges = bits ^ (bits << 1 | (m_edgeCount & 1)); edges; edges &= edges - 1)
            *edge++ = m_scanned + std::countr_zero(edges);
        m_edgeCount = size_t(edge - m_edges.data());
    }
    if (m_scanned < m_text.size())
        return State::GoesOn;
    if (m_edgeCount % 2)
        m_edges[m_edgeCount++] = m_text.size();
    return State::IsOver;
}

ZEVSearchWalk::State ZEVSearchWalk::goOnWithEmail()
{
    m_scanned = m_text.size();
    if (const qsizetype end = ZEVEmailScan::endOfMatch(m_text, m_plan.caseInsensitive); end > 0)
        add({0, end});
    return State::IsOver;
}

ZEVSearchWalk::State ZEVSearchWalk::goOnWithCandidates()
{
    if (m_block == m_blockCount)
        findNextBlocks();
    if (m_plan.isFixedText && !takeFixedText())
        return State::GoesOn;
    while (hasRoomFor(2) && ++m_attempts < MostAttempts) {
        const qsizetype candidate = nextCandidate();
        if (candidate < 0)
            return m_scanned < m_text.size() ? State::GoesOn : State::IsOver;
        if (tryCandidate(candidate) == Answer::AskMatcher)
            return State::AsksMatcher;
    }
    return State::GoesOn;
}

void ZEVSearchWalk::findNextBlocks()
{
    const auto [position, count] = ZEVTextScan::findBlocks(m_plan.anchors, m_text, m_scanned, m_blocks);
    m_scanned = position;
    m_blockCount = count;
    m_block = 0;
}

/// What goOnWithCandidates() does with each candidate, for those of the simplest kind that do not stand near the
/// text's end. False where there was no room for all of them.
bool ZEVSearchWalk::takeFixedText()
{
    const ZEVFoldedLiteral &literal = *m_plan.literal;
    const qsizetype length = literal.length();
    for (; m_block < m_blockCount; ++m_block) {
        const ZEVTextScan::Block block = m_blocks[m_block];
        if (block.begin + BlockSize + length > m_text.size())
            return true;
        if (!hasRoomFor(2 * BlockSize))
            return false;
        for (quint64 bits = block.bits; bits; bits &= bits - 1) {
            const qsizetype begin = block.begin + std::countr_zero(bits);
            const bool isMatch = (begin >= m_position) & literal.isWholeAt(m_text.utf16() + begin);
            m_edges[m_edgeCount] = begin;
            m_edges[m_edgeCount + 1] = begin + length;
            m_edgeCount += isMatch ? 2 : 0;
            m_position = isMatch ? begin + length : m_position;
        }
    }
    return true;
}

/// The next place in the blocks at which the anchors fit; -1 where those are used up.
qsizetype ZEVSearchWalk::nextCandidate()
{
    for (; m_block < m_blockCount; ++m_block) {
        ZEVTextScan::Block &block = m_blocks[m_block];
        while (block.bits) {
            const qsizetype candidate = block.begin + std::countr_zero(block.bits);
            block.bits &= block.bits - 1;
            if (candidate >= m_position)
                return candidate;
        }
    }
    return -1;
}

std::optional<ZEVRange> ZEVSearchWalk::group(int number, const Span &span) const
{
    if (m_plan.kind == ZEVSearchPlan::Kind::WebAddress)
        return m_addresses.group(number, span.begin);
    if (number != 1 || (m_plan.kind != ZEVSearchPlan::Kind::Email && !m_plan.runIsGroup))
        return std::nullopt;
    const qsizetype begin = m_plan.literal ? m_plan.literal->endOfMatch(m_text, span.begin) : span.begin;
    return ZEVRange{begin, span.end - begin};
}

ZEVSearchWalk::Answer ZEVSearchWalk::tryCandidate(qsizetype candidate)
{
    return m_plan.kind == ZEVSearchPlan::Kind::WebAddress ? tryWebAddress(candidate) : tryLiteral(candidate);
}

ZEVSearchWalk::Answer ZEVSearchWalk::tryLiteral(qsizetype start)
{
    const qsizetype literalEnd = m_plan.literal->endOfMatch(m_text, start);
    if (literalEnd < 0 || (m_plan.beginsAtBoundary && !ZEVUnitClass::isWordBoundary(m_text, start))
        || (m_plan.endsAtBoundary && !ZEVUnitClass::isWordBoundary(m_text, literalEnd)))
        return Answer::No;
    const qsizetype end = m_plan.run ? endOfRun(literalEnd) : literalEnd;
    if (m_plan.run && end == literalEnd)
        return Answer::No;
    m_position = start;
    if (m_plan.kind == ZEVSearchPlan::Kind::Candidates)
        return Answer::AskMatcher;
    add({start, end});
    return Answer::Yes;
}

ZEVSearchWalk::Answer ZEVSearchWalk::tryWebAddress(qsizetype mark)
{
    const qsizetype begin = m_addresses.beginOfMatch(m_position, mark);
    m_position = mark + 1;
    if (begin < 0)
        return Answer::No;
    add({begin, m_addresses.endOfMatch(begin)});
    return Answer::Yes;
}

qsizetype ZEVSearchWalk::endOfRun(qsizetype start) const
{
    qsizetype end = start;
    while (end < m_text.size() && m_plan.run->containsUnitAt(m_text, end))
        ++end;
    return end;
}

void ZEVSearchWalk::add(const Span &span)
{
    m_edges[m_edgeCount++] = span.begin;
    m_edges[m_edgeCount++] = m_position = span.end;
}
