// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVISO8601DateFormatter.h>

ZEVISO8601DateFormatter::ZEVISO8601DateFormatter()
    : m_format(ZEVDateFormat::withPattern(ZEVISO8601ID3DateFormatString, "en_US_POSIX"))
{
}

const ZEVISO8601DateFormatter &ZEVISO8601DateFormatter::sharedInstance()
{
    static const ZEVISO8601DateFormatter formatter;
    return formatter;
}
