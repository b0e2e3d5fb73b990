// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVUnitClass_p.h>

#include <unicode/uchar.h>

#include <algorithm>
#include <bit>

ZEVUnitClass::ZEVUnitClass(const char16_t *pattern, bool foldsCase)
{
    UErrorCode code = U_ZERO_ERROR;
    m_characters.applyPattern(icu::UnicodeString(pattern), code);
    if (foldsCase)
        m_characters.closeOver(USET_CASE_INSENSITIVE);
    m_characters.freeze();
    for (int32_t range = 0; range < m_characters.getRangeCount(); ++range) {
        const UChar32 first = m_characters.getRangeStart(range);
        const UChar32 last = std::min<UChar32>(m_characters.getRangeEnd(range), 0xFFFF);
        for (UChar32 unit = first; unit <= last; ++unit)
            m_units.set(size_t(unit));
        if (first < 0x80 && m_ascii.count < int(m_ascii.first.size()))
            m_ascii.add(char16_t(first), char16_t(std::min<UChar32>(last, 0x7F)));
    }
}

const ZEVUnitClass *ZEVUnitClass::forLetter(char16_t letter)
{
    static const ZEVUnitClass digits(u"\\p{Nd}");
    static const ZEVUnitClass words(u"[\\p{Alphabetic}\\p{M}\\p{Nd}\\p{Pc}\\u200c\\u200d]");
    static const ZEVUnitClass spaces(u"\\p{Whitespace}");
    switch (letter) {
    case u'd':
        return &digits;
    case u'w':
        return &words;
    case u's':
        return &spaces;
    default:
        return nullptr;
    }
}

namespace {

/// The character of the unit at \a position, the first or the second of two.
char32_t characterAt(QStringView text, qsizetype position)
{
    const bool isSecond =
        text[position].isLowSurrogate() && position > 0 && text[position - 1].isHighSurrogate();
    const qsizetype high = position - isSecond;
    if (text[high].isHighSurrogate() && high + 1 < text.size() && text[high + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(text[high], text[high + 1]);
    return text[position].unicode();
}

bool belongsToCharacterBefore(char32_t character)
{
    return u_hasBinaryProperty(UChar32(character), UCHAR_GRAPHEME_EXTEND)
        || u_charType(UChar32(character)) == U_FORMAT_CHAR;
}

} // namespace

bool ZEVUnitClass::isWordBoundary(QStringView text, qsizetype position)
{
    static const ZEVUnitClass &words = *forLetter(u'w');
    const char16_t unitBefore = position > 0 ? text.utf16()[position - 1] : u' ';
    const char16_t unitAfter = position < text.size() ? text.utf16()[position] : u' ';
    if (unitBefore < 0x80 && unitAfter < 0x80)
        return words.m_units[unitBefore] != words.m_units[unitAfter];
    const auto isOfWord = [&](qsizetype i) { return words.containsUnitAt(text, i); };
    const auto isAttached = [&](qsizetype i) {
        return text[i] > QChar(0x7F) && belongsToCharacterBefore(characterAt(text, i));
    };
    if (position < text.size() && isAttached(position))
        return false;
    qsizetype before = position - 1;
    while (before >= 0 && isAttached(before))
        --before;
    return (before >= 0 && isOfWord(before)) != (position < text.size() && isOfWord(position));
}

bool ZEVUnitClass::containsSurrogateAt(QStringView text, qsizetype position) const
{
    return m_characters.contains(UChar32(characterAt(text, position)));
}

quint64 ZEVUnitClass::bitsAt(QStringView text, qsizetype from) const
{
    const ZEVTextScan::Classes classes = ZEVTextScan::classesAt(m_ascii, text, from);
    quint64 bits = classes.inRanges;
    for (quint64 foreign = classes.foreign; foreign; foreign &= foreign - 1) {
        const int i = std::countr_zero(foreign);
        bits |= quint64(containsUnitAt(text, from + i)) << i;
    }
    return bits;
}
