// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVStringFilterRegexValue.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

using namespace Qt::StringLiterals;

std::optional<ZEVRegularExpression> ZEVStringFilterRegexValue::filterRegexValue(const QString &string)
{
    if (string.isEmpty())
        return std::nullopt;
    QString pattern = u".*"_s;
    // Two spaces in a row make an empty word, which is kept.
    for (const QStringView word : QStringView(string).split(u' '))
        pattern += u'(' + ZEVRegularExpression::escapedPatternForString(word) + u").*";
    ZEVError error;
    auto expression = ZEVRegularExpression::compile(pattern, ZEVRegularExpression::CaseInsensitive, &error);
    if (!expression)
        qCWarning(zevLog).noquote() << u"Encountered a regex creation error: %1"_s.arg(
            error.localizedDescription());
    return expression;
}
