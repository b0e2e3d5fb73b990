// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

/// Of a static library nobody else would ask for them.
static void initializeTexts() { Q_INIT_RESOURCE(ZEVGlobalUtils_translations); }

namespace {

/// Kept apart from the application's translators: a host's own text for the same English wording must not
/// change the library's.
class Table : public QTranslator {
public:
    Table()
    {
        initializeTexts();
        // A language without a table leaves the translator empty, and every key is its own text.
        static_cast<void>(load(QLocale(), u"ZEVGlobalUtils"_s, u"_"_s, u":/ZEVGlobalUtils/translations"_s));
    }
};

} // namespace

QString ZEVGlobalHelper::localizedStringForKey(QStringView key)
{
    static const Table table;
    const QString text = table.translate("ZEVGlobalUtils", key.toUtf8().constData());
    return text.isEmpty() ? key.toString() : text;
}
