// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVDateFormat.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextLocale.h>

#include <QMutex>

struct ZEVShortDateFormatter::Private {
    ZEVDateFormat formatFor(const QByteArray &localeIdentifier);

    QMutex mutex;
    QByteArray locale; // that of the format
    std::optional<ZEVDateFormat> format;
};

/// A copy, which shares what ICU made: another thread may have another locale made in the meantime.
ZEVDateFormat ZEVShortDateFormatter::Private::formatFor(const QByteArray &localeIdentifier)
{
    const QMutexLocker lock(&mutex);
    if (!format || locale != localeIdentifier) {
        format = ZEVDateFormat::withShortStyle(localeIdentifier);
        locale = localeIdentifier;
    }
    return *format;
}

ZEVShortDateFormatter::ZEVShortDateFormatter()
    : d(std::make_unique<Private>())
{
}

ZEVShortDateFormatter::~ZEVShortDateFormatter() = default;

const ZEVShortDateFormatter &ZEVShortDateFormatter::sharedInstance()
{
    static const ZEVShortDateFormatter formatter;
    return formatter;
}

QString ZEVShortDateFormatter::stringFromDate(const QDateTime &date) const
{
    return d->formatFor(ZEVTextLocale::dateIdentifier()).stringFromDate(date);
}
