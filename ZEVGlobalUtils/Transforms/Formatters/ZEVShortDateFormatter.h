// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QDateTime>
#include <QString>

#include <memory>

/// Writes dates and times for people: the short forms of the language of QLocale(), which it follows when a
/// host sets another (English where LANG says C), in the system's time zone. Any thread.
class ZEV_EXPORT ZEVShortDateFormatter {
public:
    static const ZEVShortDateFormatter &sharedInstance();
    ZEVShortDateFormatter();
    ~ZEVShortDateFormatter();
    Q_DISABLE_COPY_MOVE(ZEVShortDateFormatter)

    /// Empty for a date that is not valid.
    QString stringFromDate(const QDateTime &date) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
