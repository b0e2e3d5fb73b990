// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Transforms/ZEVISO8601DateFormatter.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringScorer.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringStrip.h>
#include <ZEVGlobalUtils/Transforms/ZEVStringTransforms.h>
#include <ZEVGlobalUtils/Transforms/ZEVValueTransformer.h>
#include <ZEVGlobalUtils/Transforms/ZEVZeroAsNilNumericEnforcer.h>

/// What is the same in every language and on every thread, over texts whose letters some languages treat in a
/// way of their own.
inline QStringList fixedResults()
{
    using namespace Qt::StringLiterals;
    static const QStringList texts{u"IRMAK in İstanbul: ıssız IDM"_s,
                                   u"het IJS van ijmuiden"_s,
                                   u"die STRASSE und straße"_s,
                                   u"the best of (the early years) vol. II"_s,
                                   u"1ST 22nd rock'n'roll 3d: AND"_s,
                                   u"日本語 の title ラジオ"_s,
                                   u"ΟΔΟΣ ᾳδης of"_s,
                                   u"x \xD83C \U0001F468‍\U0001F469 ￼ y"_s};
    QStringList results;
    for (const QString &text : texts) {
        results << ZEVStringTransforms::orvCapitalizedString(text)
                << ZEVStringTransforms::orvTitleCaseString(text)
                << ZEVStringTransforms::sentenceCaseString(text) << ZEVStringTransforms::camelCaseString(text)
                << ZEVStringTransforms::withUnderscoresString(text)
                << ZEVStringStrip::stringByStrippingCharactersInSet(text, ZEVCharacterSet::letters())
                << QString::number(ZEVStringScore::scoreAgainst(text, u"iıst"), 'g', 17);
    }
    const auto transformed = [](const char *name, const QVariant &value) {
        return ZEVValueTransformer::valueTransformerForName(QString::fromLatin1(name))
            ->transformedValue(value)
            .toString();
    };
    QVariant number;
    ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer()->getObjectValue(&number, u"1234"_s);
    results << transformed("ResolutionTransformer", u"{1640.9, 480.2}"_s)
            << transformed("ZEVMatchesCountDisplayTransformer", 1234)
            << transformed("ZEVResultsCountDisplayTransformer", 1234)
            << transformed("TagSizeTransformer", QVariantList{0}) << number.toString()
            << ZEVISO8601DateFormatter::sharedInstance().stringFromDate(
                   QDateTime::fromMSecsSinceEpoch(1'714'979'289'000));
    return results;
}
