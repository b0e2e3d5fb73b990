// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/Translations.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

void Translations::install()
{
    const QString folder = u":/tageditor/translations"_s;
    auto *const own = new QTranslator(qApp);
    if (own->load(QLocale(), u"tageditor"_s, u"_"_s, folder) || own->load(u"tageditor_en"_s, folder))
        QCoreApplication::installTranslator(own);
    // Asked for the user's languages, too, Qt might find one that the window does not speak.
    auto *const qt = new QTranslator(qApp);
    if (qt->load(u"qtbase_"_s + own->language(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
}
