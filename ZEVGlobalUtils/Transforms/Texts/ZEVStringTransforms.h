// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules.h>

#include <QSet>
#include <QString>

class ZEVCharacterSet;

/// Re-cases titles, names and file names. Words are those of Unicode Standard Annex #29 in the user's
/// language (English where LANG says C); the case mappings are the same in every language unless the rules
/// name one. Any thread.
namespace ZEVStringTransforms {

/// Every word capitalised, and the upper-case terms in capitals: "dj at the bbc" gives "DJ At The Bbc".
ZEV_EXPORT QString orvCapitalizedString(QStringView string, const ZEVCaseRules &rules = {});

/// Title case: the lower-case terms stay small within the title, Roman numerals in capitals and ordinals keep
/// their form, and every other word is capitalised as by orvCapitalizedString().
ZEV_EXPORT QString orvTitleCaseString(QStringView string, const ZEVCaseRules &rules = {});

/// All in lower case but the first word of the whole string, which is capitalised; no term is upper-cased.
ZEV_EXPORT QString sentenceCaseString(QStringView string, const ZEVCaseRules &rules = {});

/// The letters of all words run together, the first word in lower case and the others capitalised: "3d art
/// now" gives "dArtNow".
ZEV_EXPORT QString camelCaseString(QStringView string, const ZEVCaseRules &rules = {});

/// Every "_" becomes a space.
ZEV_EXPORT QString sansUnderscoresString(QStringView string);

/// Every single white-space character, line ends too, becomes "_".
ZEV_EXPORT QString withUnderscoresString(QStringView string);

/// The lists of the rules that are given none, and what a word after it begins anew: . : ' ! ?
ZEV_EXPORT const QSet<QString> &upperCaseTerms();
ZEV_EXPORT const QSet<QString> &lowerCaseTerms();
ZEV_EXPORT const ZEVCharacterSet &punctuationResetSet();

} // namespace ZEVStringTransforms
