// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <atomic>

namespace {

std::atomic<std::chrono::milliseconds> currentTimeLimit{std::chrono::milliseconds(250)};

QStringView reasonForCode(UErrorCode code)
{
    switch (code) {
    case U_REGEX_BAD_ESCAPE_SEQUENCE:
        return u"a backslash stands before a character that it does not go with";
    case U_REGEX_MISMATCHED_PAREN:
        return u"a parenthesis has no partner";
    case U_REGEX_MISSING_CLOSE_BRACKET:
        return u"a bracket is not closed";
    case U_REGEX_NUMBER_TOO_BIG:
    case U_REGEX_PATTERN_TOO_BIG:
        return u"it is too large";
    case U_REGEX_BAD_INTERVAL:
    case U_REGEX_MAX_LT_MIN:
        return u"a repetition in braces is not well formed";
    case U_REGEX_INVALID_BACK_REF:
    case U_REGEX_INVALID_CAPTURE_GROUP_NAME:
        return u"it refers to a group that it does not have";
    case U_REGEX_LOOK_BEHIND_LIMIT:
        return u"a look-behind has no limit to its length";
    case U_REGEX_INVALID_RANGE:
        return u"a range of characters runs backwards";
    default:
        return u"it is not well formed";
    }
}

ZEVError compileError(const QString &pattern, UErrorCode code, const UParseError &place)
{
    QString text = ZEVGlobalHelper::localizedStringForKey(u"The expression “%1” is not valid: %2.")
                       .arg(pattern, ZEVGlobalHelper::localizedStringForKey(reasonForCode(code)));
    if (place.line == 1 && place.offset > 0)
        text += u' ' + ZEVGlobalHelper::localizedStringForKey(u"(Character %1)").arg(place.offset);
    const ZEVError engineError(
        u"ICU", code,
        {{ZEVError::LocalizedDescriptionKey.toString(), QString::fromLatin1(u_errorName(code))}});
    return {ZEVError::CocoaErrorDomain,
            ZEVError::FormattingError,
            {{ZEVError::LocalizedDescriptionKey.toString(), text},
             {ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(engineError)}}};
}

} // namespace

ZEVRegularExpression::ZEVRegularExpression(std::shared_ptr<const Compiled> compiled)
    : m_compiled(std::move(compiled))
{
}

std::optional<ZEVRegularExpression> ZEVRegularExpression::compile(const QString &pattern, Options options,
                                                                  ZEVError *error)
{
    const uint32_t flags = options.testFlag(CaseInsensitive) ? UREGEX_CASE_INSENSITIVE : 0;
    const icu::UnicodeString text(false, pattern.utf16(), static_cast<int32_t>(pattern.size()));
    UErrorCode code = U_ZERO_ERROR;
    UParseError place{};
    std::unique_ptr<const icu::RegexPattern> compiled(icu::RegexPattern::compile(text, flags, place, code));
    if (U_FAILURE(code)) {
        if (error)
            *error = compileError(pattern, code, place);
        return std::nullopt;
    }
    return ZEVRegularExpression(std::make_shared<const Compiled>(
        Compiled{pattern, options, std::move(compiled),
                 ZEVSearchPlan::forPattern(pattern, options.testFlag(CaseInsensitive))}));
}

QString ZEVRegularExpression::escapedPatternForString(QStringView literal)
{
    QString escaped;
    escaped.reserve(literal.size());
    for (const QChar character : literal) {
        if (QStringView(u"\\*?+[(){}^$|./").contains(character))
            escaped += u'\\';
        escaped += character;
    }
    return escaped;
}

const QString &ZEVRegularExpression::pattern() const { return m_compiled->pattern; }

ZEVRegularExpression::Options ZEVRegularExpression::options() const { return m_compiled->options; }

int ZEVRegularExpression::numberOfCaptureGroups() const
{
    UErrorCode code = U_ZERO_ERROR;
    const std::unique_ptr<icu::RegexMatcher> matcher(m_compiled->icuPattern->matcher(code));
    return U_SUCCESS(code) ? matcher->groupCount() : 0;
}

std::optional<int> ZEVRegularExpression::numberOfCaptureGroup(const QString &name) const
{
    UErrorCode code = U_ZERO_ERROR;
    const icu::UnicodeString text(false, name.utf16(), static_cast<int32_t>(name.size()));
    const int number = m_compiled->icuPattern->groupNumberFromName(text, code);
    return U_SUCCESS(code) ? std::optional(number) : std::nullopt;
}

ZEVRegularExpression::Matches ZEVRegularExpression::matchesInString(QStringView text) const
{
    Matches matches;
    ZEVRegularExpressionMatcher matcher(*this);
    matcher.setText(text);
    while (matcher.findSome(matches.ranges)) { }
    matches.limitReached = matcher.limitReached();
    return matches;
}

std::optional<ZEVRange> ZEVRegularExpression::rangeOfFirstMatchInString(QStringView text) const
{
    ZEVRegularExpressionMatcher matcher(*this);
    matcher.setText(text);
    return matcher.findNext();
}

void ZEVRegularExpression::setTimeLimit(std::chrono::milliseconds limit) { currentTimeLimit = limit; }

std::chrono::milliseconds ZEVRegularExpression::timeLimit() { return currentTimeLimit; }

bool operator==(const ZEVRegularExpression &a, const ZEVRegularExpression &b)
{
    return a.pattern() == b.pattern() && a.options() == b.options();
}
