// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVUnitClass_p.h>

#include <algorithm>
#include <bit>

ZEVUnitClass::ZEVUnitClass(const char16_t *pattern)
{
    UErrorCode code = U_ZERO_ERROR;
    m_characters.applyPattern(icu::UnicodeString(pattern), code).freeze();
    for (int32_t range = 0; range < m_characters.getRangeCount(); ++range) {
        const UChar32 first = m_characters.getRangeStart(range);
        const UChar32 last = std::min<UChar32>(m_characters.getRangeEnd(range), 0xFFFF);
        for (UChar32 unit = first; unit <= last; ++unit)
            m_units.set(size_t(unit));
        if (first < 0x80)
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

bool ZEVUnitClass::containsUnitAt(QStringView text, qsizetype position) const
{
    const QChar unit = text[position];
    if (!unit.isSurrogate())
        return m_units[unit.unicode()];
    const qsizetype high = unit.isHighSurrogate() ? position : position - 1;
    if (high < 0 || high + 1 >= text.size() || !text[high].isHighSurrogate()
        || !text[high + 1].isLowSurrogate())
        return false;
    return m_characters.contains(UChar32(QChar::surrogateToUcs4(text[high], text[high + 1])));
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
