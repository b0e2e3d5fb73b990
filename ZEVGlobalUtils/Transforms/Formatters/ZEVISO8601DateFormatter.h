// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVDateFormat.h>

/// The form of ISO 8601 in which tags keep times: "2024-05-06T07:08:09+01:00", with Z for UTC.
inline constexpr QStringView ZEVISO8601ID3DateFormatString = u"yyyy-MM-dd'T'HH:mm:ssZZZZZ";

/// Writes and reads that form, the same in every language, in the system's time zone. Any thread.
class ZEV_EXPORT ZEVISO8601DateFormatter {
public:
    static const ZEVISO8601DateFormatter &sharedInstance();
    ZEVISO8601DateFormatter();

    /// Empty for a date that is not valid.
    QString stringFromDate(const QDateTime &date) const { return m_format.stringFromDate(date); }
    /// In local time; nil for what is not wholly of this form.
    std::optional<QDateTime> dateFromString(QStringView string) const
    {
        return m_format.dateFromString(string);
    }

private:
    ZEVDateFormat m_format;
};
