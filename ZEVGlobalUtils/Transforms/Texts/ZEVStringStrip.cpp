// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringStrip.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>

namespace {

bool isPairAt(QStringView string, qsizetype position)
{
    return position >= 0 && position + 1 < string.size() && string[position].isHighSurrogate()
        && string[position + 1].isLowSurrogate();
}

char32_t characterAt(QStringView string, qsizetype position)
{
    return isPairAt(string, position) ? QChar::surrogateToUcs4(string[position], string[position + 1])
                                      : string[position].unicode();
}

} // namespace

QString ZEVStringStrip::stringByStrippingCharactersInSet(QStringView string, const ZEVCharacterSet &set)
{
    QString kept;
    kept.reserve(string.size());
    for (const QChar unit : string) {
        if (!set.contains(unit.unicode()))
            kept += unit;
    }
    return kept;
}

ZEVRange ZEVStringStrip::rangeOfSubstringByTrimmingCharactersInSet(QStringView string,
                                                                   const ZEVCharacterSet &set)
{
    qsizetype first = 0;
    while (first < string.size() && set.contains(characterAt(string, first)))
        first += isPairAt(string, first) ? 2 : 1;
    if (first == string.size())
        return {};
    qsizetype last = string.size();
    do
        last -= isPairAt(string, last - 2) ? 2 : 1;
    while (set.contains(characterAt(string, last)));
    return {first, last - first + 1};
}
