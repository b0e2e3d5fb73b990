// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <cstdio>

int main()
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(
        QVariantList{QStringLiteral("Track "), QVariant::fromValue(ZEVPatternItem::digits())});
    std::printf("%d matches\n%s\n",
                int(query.searchExpression()->numberOfMatchesInString(u"Track 1, Track 22")),
                qPrintable(*ZEVFindPanelQuery::titleForMatchingType(0)));
}
