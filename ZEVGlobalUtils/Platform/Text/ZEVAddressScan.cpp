// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVAddressScan_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVUnitClass_p.h>

static_assert(ZEVEmailScan::Expression.size() == 51);
static_assert(ZEVWebAddressScan::Expression.size() == 208);

namespace {

struct EmailClasses {
    explicit EmailClasses(bool foldsCase)
        : person(u"[A-Z0-9a-z._%+\\-]", foldsCase)
        , host(u"[A-Za-z0-9.\\-]", foldsCase)
        , letters(u"[A-Za-z]", foldsCase)
    {
    }
    static const EmailClasses &shared(bool foldsCase)
    {
        static const EmailClasses exact(false);
        static const EmailClasses folded(true);
        return foldsCase ? folded : exact;
    }

    ZEVUnitClass person;
    ZEVUnitClass host;
    ZEVUnitClass letters;
};

struct WebClasses {
    static const WebClasses &shared()
    {
        static const WebClasses classes;
        return classes;
    }

    ZEVUnitClass letters{u"[a-z]", true};
    ZEVUnitClass scheme{u"[\\p{Alphabetic}\\p{M}\\p{Nd}\\p{Pc}\\u200c\\u200d\\-]", true};
    ZEVUnitClass host{u"[a-z0-9.\\-]", true};
    ZEVUnitClass opaque{u"[a-z0-9%/]", true};
    ZEVUnitClass others{u"[^\\p{Whitespace}()<>]", true};
};

qsizetype endOfRun(const ZEVUnitClass &unitClass, QStringView text, qsizetype from)
{
    while (from < text.size() && unitClass.containsUnitAt(text, from))
        ++from;
    return from;
}

bool isAt(QStringView text, qsizetype position, char16_t unit)
{
    return position < text.size() && text[position] == unit;
}

bool isAt(const ZEVUnitClass &unitClass, QStringView text, qsizetype position)
{
    return position < text.size() && unitClass.containsUnitAt(text, position);
}

/// At the end of the text, or before the line end that is its last.
bool isAtLastLineEnd(QStringView text, qsizetype position)
{
    static constexpr QStringView ends = u"\n\v\f\r\u0085\u2028\u2029";
    const QStringView rest = text.mid(position);
    return rest.isEmpty() || rest == u"\r\n" || (rest.size() == 1 && ends.contains(rest[0]));
}

} // namespace

/// None of the characters before the "@" is one, and letters hold no full stop: there is only one way.
qsizetype ZEVEmailScan::endOfMatch(QStringView text, bool caseInsensitive)
{
    const EmailClasses &classes = EmailClasses::shared(caseInsensitive);
    const qsizetype at = endOfRun(classes.person, text, 0);
    if (at == 0 || !isAt(text, at, u'@'))
        return -1;
    const qsizetype end = endOfRun(classes.host, text, at + 1);
    qsizetype dot = end - 1;
    while (dot > at && classes.letters.containsUnitAt(text, dot))
        --dot;
    const qsizetype letters = end - dot - 1;
    const bool isHost = dot > at + 1 && text[dot] == u'.' && letters >= 2 && letters <= 4;
    return isHost && isAtLastLineEnd(text, end) ? end : -1;
}

ZEVTextScan::Anchors ZEVWebAddressScan::anchors()
{
    ZEVTextScan::Anchors anchors;
    for (ZEVTextScan::Units &units : anchors.units) {
        units.add(u'.');
        units.add(u':');
    }
    anchors.prepare();
    return anchors;
}

void ZEVWebAddressScan::setText(QStringView text)
{
    m_text = text;
    m_wordEnd = m_hostEnd = m_domainDot = 0;
}

qsizetype ZEVWebAddressScan::beginOfMatch(qsizetype from, qsizetype mark)
{
    const WebClasses &classes = WebClasses::shared();
    qsizetype begin = mark;
    while (begin > from && (classes.scheme.containsUnitAt(m_text, begin - 1) || m_text[begin - 1] == u'.'))
        --begin;
    while (begin <= mark && !isMatchAt(begin))
        ++begin;
    return begin <= mark ? begin : -1;
}

bool ZEVWebAddressScan::isMatchAt(qsizetype begin)
{
    return WebClasses::shared().host.containsUnitAt(m_text, begin)
        && ZEVUnitClass::isWordBoundary(m_text, begin)
        && (hasDomain(begin) || hasScheme(begin) || hasPrefix(begin));
}

bool ZEVWebAddressScan::hasScheme(qsizetype begin)
{
    const WebClasses &classes = WebClasses::shared();
    if (!classes.letters.containsUnitAt(m_text, begin))
        return false;
    if (m_wordEnd <= begin + 1)
        m_wordEnd = endOfRun(classes.scheme, m_text, begin + 1);
    return m_wordEnd > begin + 1 && isAt(m_text, m_wordEnd, u':')
        && isAt(classes.opaque, m_text, m_wordEnd + 1);
}

bool ZEVWebAddressScan::hasPrefix(qsizetype begin) const
{
    if (!m_text.mid(begin).startsWith(u"www", Qt::CaseInsensitive))
        return false;
    const ZEVUnitClass &digits = *ZEVUnitClass::forLetter(u'd');
    qsizetype at = begin + 3;
    for (int i = 0; i < 3 && isAt(digits, m_text, at); ++i)
        at += m_text[at].isHighSurrogate() ? 2 : 1;
    return isAt(m_text, at, u'.');
}

bool ZEVWebAddressScan::hasDomain(qsizetype begin)
{
    if (m_hostEnd <= begin) {
        m_hostEnd = endOfRun(WebClasses::shared().host, m_text, begin);
        m_domainDot = begin;
    }
    if (m_domainDot <= begin) {
        m_domainDot = begin + 1;
        while (m_domainDot < m_hostEnd && !isDomainDot(m_domainDot))
            ++m_domainDot;
    }
    return m_domainDot < m_hostEnd;
}

bool ZEVWebAddressScan::isDomainDot(qsizetype position) const
{
    const ZEVUnitClass &letters = WebClasses::shared().letters;
    return m_text[position] == u'.' && isAt(letters, m_text, position + 1)
        && isAt(letters, m_text, position + 2);
}

ZEVWebAddressScan::Tail ZEVWebAddressScan::tailFrom(qsizetype begin) const
{
    Tail tail{begin};
    do
        tail.end = endOfRun(WebClasses::shared().others, m_text, tail.end);
    while (isAt(m_text, tail.end, u'(') && addBracket(tail));
    return tail;
}

/// Of a bracket that is not closed nothing is taken.
bool ZEVWebAddressScan::addBracket(Tail &tail) const
{
    const ZEVUnitClass &others = WebClasses::shared().others;
    Tail longer = tail;
    for (++longer.end; !isAt(m_text, longer.end, u')');) {
        const qsizetype begin = longer.end;
        const bool isInner = isAt(m_text, begin, u'(');
        const qsizetype runBegin = begin + isInner;
        longer.end = endOfRun(others, m_text, runBegin);
        if (longer.end == runBegin || (isInner && !isAt(m_text, longer.end, u')')))
            return false;
        longer.end += isInner;
        longer.contents[0] = ZEVRange{begin, longer.end - begin};
        if (isInner)
            longer.contents[1] = longer.contents[0];
    }
    ++longer.end;
    tail = longer;
    return true;
}

std::optional<ZEVRange> ZEVWebAddressScan::group(int number, qsizetype begin) const
{
    const Tail tail = tailFrom(begin);
    if (number == 3 || number == 4)
        return tail.contents.at(size_t(number - 3));
    return number <= 2 ? std::optional(ZEVRange{begin, tail.end - begin}) : std::nullopt;
}
