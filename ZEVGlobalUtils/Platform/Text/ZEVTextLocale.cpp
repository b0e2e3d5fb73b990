// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVTextLocale.h>

#include <QLocale>

QByteArray ZEVTextLocale::identifier(const QLocale &locale)
{
    if (locale.language() == QLocale::C)
        return QByteArrayLiteral("en");
    // The tag leaves out what is likely, the territory too, which dates need; the name leaves out the script.
    const QString tag = locale.bcp47Name();
    const bool namesScript = tag.section(u'-', 1, 1).size() == 4;
    return (namesScript ? tag : locale.name()).toLatin1();
}

const QByteArray &ZEVTextLocale::userIdentifier()
{
    thread_local QLocale lastLocale = QLocale::c();
    thread_local QByteArray lastIdentifier = identifier(lastLocale);
    if (const QLocale locale; locale != lastLocale) {
        lastIdentifier = identifier(locale);
        lastLocale = locale;
    }
    return lastIdentifier;
}

QByteArray ZEVTextLocale::dateIdentifier()
{
    const QString dates = qEnvironmentVariable("LC_TIME");
    const bool isOverruled = dates.isEmpty() || !qEnvironmentVariable("LC_ALL").isEmpty()
        || QLocale().name() != QLocale::system().name();
    return isOverruled ? userIdentifier() : identifier(QLocale(dates));
}
