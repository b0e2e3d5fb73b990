// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVMenuRecents.h>

#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <QMenu>

#include <algorithm>

namespace {

/// The icons of the file manager's titles are left out: a menu has a column for them, and a screen reader
/// would read them as characters.
QString nameWithFolder(const QUrl &url)
{
    const auto title =
        ZEVFileManagerHelpers::uniqueDisplayName(*ZEVPlainFileManager::defaultManager(), true, url);
    return QString(title.string()).remove(QChar::ObjectReplacementCharacter);
}

qint64 tagOfTitle(const QString &title) { return qint64(qHash(title)); }

QAction *itemWithTag(const QMenu &menu, qint64 tag)
{
    const QList<QAction *> items = menu.actions();
    const auto found = std::ranges::find(items, tag, &ZEVMenuItem::tag);
    return found == items.end() ? nullptr : *found;
}

void appendItem(QMenu *menu, const QUrl &url, const ZEVMenuRecents::ActionBlock &actionBlock)
{
    QAction *item = ZEVMenuItemBlockAdditions::itemWithTitle(
        ZEVFileURL::displayName(ZEVFileReference::filePathURL(url)),
        [url, actionBlock](QAction *) {
            if (actionBlock)
                actionBlock(url);
        },
        menu);
    ZEVMenuItem::setRepresentedObject(item, url);
    const qint64 tag = tagOfTitle(ZEVMenuItem::title(item));
    QAction *namesake = itemWithTag(*menu, tag);
    const bool isAmbiguous = namesake && ZEVMenuItem::representedObject(namesake).isValid();
    if (isAmbiguous)
        ZEVMenuRecents::setNameAndIcon(namesake, true);
    ZEVMenuItem::setTag(item, tag);
    ZEVMenuRecents::setNameAndIcon(item, isAmbiguous);
    menu->addAction(item);
}

} // namespace

void ZEVMenuRecents::setNameAndIcon(QAction *item, bool ambiguous)
{
    const QUrl url = ZEVFileReference::filePathURL(ZEVMenuItem::representedObject(item).toUrl());
    item->setIcon(ZEVWorkspace::iconForFile(url));
    item->setToolTip(url.toDisplayString(QUrl::PreferLocalFile));
    ZEVMenuItem::setTitle(item, ZEVFileURL::displayName(url));
    if (ambiguous)
        ZEVMenuItem::setAttributedTitle(item, ZEVAttributedString(nameWithFolder(url)));
}

void ZEVMenuRecents::fillWithRecentsItemURLs(QMenu *menu, const QList<QUrl> &urls,
                                             const ActionBlock &actionBlock)
{
    for (const QUrl &url : urls)
        appendItem(menu, url, actionBlock);
}
