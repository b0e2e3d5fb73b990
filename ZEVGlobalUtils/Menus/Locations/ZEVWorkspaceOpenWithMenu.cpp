// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVWorkspaceOpenWithMenu.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVApplicationChooser_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplications_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVPlatformVersion_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVLocalizedStandardCompare_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QFileInfo>
#include <QMenu>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView OSStatusErrorDomain = u"NSOSStatusErrorDomain";

/// Names of so many UTF-16 units leave no room for more.
constexpr qsizetype LongName = 15;

QString text(const QVariantMap &record, QStringView key) { return record.value(key.toString()).toString(); }

QVariantMap recordOfApplication(const QUrl &application)
{
    return {{ZEVAppURLKey.toString(), application},
            {ZEVAppDisplayNameKey.toString(), ZEVApplications::displayName(application)},
            {ZEVAppVersionKey.toString(), ZEVApplications::version(application)}};
}

/// The higher version of the same name first.
bool comesBefore(const QVariantMap &one, const QVariantMap &other)
{
    const int names =
        ZEVLocalizedStandardCompare(text(one, ZEVAppDisplayNameKey), text(other, ZEVAppDisplayNameKey));
    if (names != 0)
        return names < 0;
    return ZEVLocalizedStandardCompare(text(one, ZEVAppVersionKey), text(other, ZEVAppVersionKey)) > 0;
}

/// Kept: nothing stands between name and version, so "A 1" in version "0" passes for "A " in version "10".
QList<QVariantMap> recordsWithoutDuplicates(const QList<QUrl> &applications)
{
    QList<QVariantMap> records;
    QSet<QString> seen;
    for (const QUrl &application : applications) {
        const QVariantMap record = recordOfApplication(application);
        const QString key = text(record, ZEVAppDisplayNameKey) + text(record, ZEVAppVersionKey);
        if (!seen.contains(key))
            records.append(record);
        seen.insert(key);
    }
    std::ranges::stable_sort(records, comesBefore);
    return records;
}

/// What stands behind the last dot is an extension when it has no blank: "Draw.io app" is a whole name.
QString withoutExtension(const QString &title)
{
    const qsizetype dot = title.lastIndexOf(u'.');
    return dot < 0 || title.indexOf(u' ', dot) >= 0 ? title : title.first(dot);
}

QString titleWithSuffix(QString title, const QString &suffix)
{
    if (title.endsWith(u"app"))
        title = withoutExtension(title);
    if (!suffix.isEmpty() && title.size() < LongName)
        title += u" (%1)"_s.arg(suffix);
    return title;
}

void addApplication(QMenu *menu, const QUrl &application, const QString &suffix, const QList<QUrl> &urls)
{
    QAction *item = ZEVMenuItemBlockAdditions::itemWithTitle(
        titleWithSuffix(ZEVApplications::displayName(application), suffix),
        [=](QAction *) { ZEVWorkspaceOpenWithMenu::openURLs(urls, application); }, menu);
    item->setIcon(ZEVApplications::icon(application)); // which menus show at 16 points
    if constexpr (ZEVPlatformVersion >= 27)
        item->setIconVisibleInMenu(true);
    menu->addAction(item);
}

void addSeparatorAfterItems(QMenu *menu)
{
    if (!menu->isEmpty())
        menu->addSeparator();
}

void addChooser(QMenu *menu, const QList<QUrl> &urls)
{
    menu->addAction(ZEVMenuItemBlockAdditions::itemWithTitle(
        ZEVGlobalHelper::localizedStringForKey(u"Choose…"_s),
        [=](QAction *) {
            ZEVWorkspaceOpenWithMenu::openURLs(urls, ZEVApplicationChooser::chooseApplication());
        },
        menu));
}

} // namespace

void ZEVWorkspaceOpenWithMenu::setupMenu(QMenu *menu, const QList<QUrl> &withAppsHandlingURLs)
{
    if (withAppsHandlingURLs.isEmpty())
        return;
    ZEVMenuItemRemoveAllFollowing::removeAllItems(menu);
    const QUrl running = ZEVApplications::mainApplicationURL();
    const QUrl &first = withAppsHandlingURLs.first();
    const QUrl preferred = ZEVApplications::URLForApplicationToOpenURL(first);
    if (preferred.isValid() && preferred != running)
        addApplication(menu, preferred, ZEVGlobalHelper::localizedStringForKey(u"Default"_s),
                       withAppsHandlingURLs);
    QList<QUrl> others = ZEVApplications::applicationURLsForURL(first);
    others.removeIf([&](const QUrl &url) { return url == preferred || url == running; });
    if (!others.isEmpty())
        addSeparatorAfterItems(menu);
    for (const QVariantMap &record : recordsWithoutDuplicates(others))
        addApplication(menu, record.value(ZEVAppURLKey.toString()).toUrl(), text(record, ZEVAppVersionKey),
                       withAppsHandlingURLs);
    addSeparatorAfterItems(menu);
    addChooser(menu, withAppsHandlingURLs);
}

void ZEVWorkspaceOpenWithMenu::openURLs(const QList<QUrl> &urls, const QUrl &withApplicationAtURL)
{
    if (!withApplicationAtURL.isValid())
        return;
    const auto failure = ZEVApplications::open(urls, withApplicationAtURL);
    if (!failure)
        return;
    const ZEVError error(OSStatusErrorDomain, failure->status,
                         {{ZEVError::LocalizedDescriptionKey.toString(), failure->reason}});
    qCWarning(zevLog).noquote() << u"Couldn't launch %1: LSOpenFromURLSpec returned %2/%3"_s.arg(
        QString::fromUtf8(ZEVFileURL::path(withApplicationAtURL)), QString::number(failure->status),
        error.localizedDescription());
}
