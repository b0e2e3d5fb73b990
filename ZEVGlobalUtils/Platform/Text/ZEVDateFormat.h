// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

/// Writes and reads dates as a language does or as a pattern says (Unicode Technical Standard #35), in the
/// system's time zone when it was made. A copy shares the format; any thread.
class ZEV_EXPORT ZEVDateFormat {
public:
    /// \a localeIdentifier is one of ZEVTextLocale. Years are counted as ISO 8601 and QDateTime do, without
    /// the Julian calendar.
    static ZEVDateFormat withPattern(QStringView pattern, const QByteArray &localeIdentifier);
    /// The language's short forms of date and time.
    static ZEVDateFormat withShortStyle(const QByteArray &localeIdentifier);

    /// Empty for a date that is not valid.
    QString stringFromDate(const QDateTime &date) const;
    /// Nil unless the whole text is a date of this form.
    std::optional<QDateTime> dateFromString(QStringView string) const;

private:
    struct Private;
    explicit ZEVDateFormat(std::shared_ptr<const Private> format);

    std::shared_ptr<const Private> d;
};
