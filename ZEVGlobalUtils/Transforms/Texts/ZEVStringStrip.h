// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QString>

class ZEVCharacterSet;

/// Any thread.
namespace ZEVStringStrip {

/// Asks the set about each UTF-16 unit alone, so a character of two units is never a member: it stays, unless
/// the set contains the halves (an inverted set does).
ZEV_EXPORT QString stringByStrippingCharactersInSet(QStringView string, const ZEVCharacterSet &set);

/// What remains between the set's characters at both ends; {0, 0} when nothing does. Kept: the range ends one
/// UTF-16 unit after the start of the last remaining character, so one of two units loses its second.
ZEV_EXPORT ZEVRange rangeOfSubstringByTrimmingCharactersInSet(QStringView string, const ZEVCharacterSet &set);

} // namespace ZEVStringStrip
