// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVDateFormat.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <limits>

struct ZEVDateFormat::Private {
    std::unique_ptr<const icu::DateFormat> format; ///< null where ICU could make none
};

namespace {

icu::UnicodeString aliasFor(QStringView text)
{
    return icu::UnicodeString(false, text.utf16(), static_cast<int32_t>(text.size()));
}

void leaveOutJulianCalendar(icu::DateFormat &format)
{
    std::unique_ptr<icu::Calendar> calendar(format.getCalendar()->clone());
    auto *const gregorian = dynamic_cast<icu::GregorianCalendar *>(calendar.get());
    UErrorCode code = U_ZERO_ERROR;
    if (!gregorian)
        return;
    gregorian->setGregorianChange(-std::numeric_limits<double>::infinity(), code);
    if (U_SUCCESS(code))
        format.adoptCalendar(calendar.release());
}

} // namespace

ZEVDateFormat::ZEVDateFormat(std::shared_ptr<const Private> format)
    : d(std::move(format))
{
}

ZEVDateFormat ZEVDateFormat::withPattern(QStringView pattern, const QByteArray &localeIdentifier)
{
    UErrorCode code = U_ZERO_ERROR;
    const icu::Locale locale(localeIdentifier.constData());
    auto format =
        std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(aliasFor(pattern)), locale, code);
    if (U_FAILURE(code)) {
        qCWarning(zevLog) << "No date format:" << u_errorName(code) << pattern << localeIdentifier;
        return ZEVDateFormat(std::make_shared<const Private>());
    }
    leaveOutJulianCalendar(*format);
    format->setLenient(false);
    return ZEVDateFormat(std::make_shared<const Private>(Private{std::move(format)}));
}

ZEVDateFormat ZEVDateFormat::withShortStyle(const QByteArray &localeIdentifier)
{
    const icu::Locale locale(localeIdentifier.constData());
    std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(icu::DateFormat::kShort, icu::DateFormat::kShort, locale));
    if (!format)
        qCWarning(zevLog) << "No date format:" << localeIdentifier;
    return ZEVDateFormat(std::make_shared<const Private>(Private{std::move(format)}));
}

QString ZEVDateFormat::stringFromDate(const QDateTime &date) const
{
    if (!d->format || !date.isValid())
        return {};
    icu::UnicodeString text;
    d->format->format(static_cast<UDate>(date.toMSecsSinceEpoch()), text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

std::optional<QDateTime> ZEVDateFormat::dateFromString(QStringView string) const
{
    if (!d->format || string.size() > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    icu::ParsePosition position;
    const UDate date = d->format->parse(aliasFor(string), position);
    if (string.isEmpty() || position.getErrorIndex() >= 0 || position.getIndex() != string.size())
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(date));
}
