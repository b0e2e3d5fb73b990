// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/menus/FolderMenus.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemRemoveAllFollowing.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVMenuRecents.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

#include <QMenu>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int FoldersKept = 10;

QString pathOf(const QUrl &url) { return ZEVFileReference::filePathURL(url).toLocalFile(); }

} // namespace

FolderMenus::FolderMenus(QObject *parent)
    : QObject(parent)
    , m_button(new ZEVURLPopUpButton)
{
    m_button->setAccessibleName(tr("Folder"));
    m_button->setFlat(true);
    m_button->setAllowedFileTypes(QStringList{u"public.folder"_s});
    m_button->setMaximumRecentURLCount(FoldersKept);
    m_button->setKeepsUnmountedURLs(true);
    m_button->setAutosaveName(u"Folder"_s);
    m_button->setURL({}); // none is open yet
    m_button->noneItem()->setVisible(false);
    m_button->setDelegate(this);
}

QToolBar *FolderMenus::makeToolBar()
{
    auto *bar = new QToolBar(tr("Folder"));
    bar->setObjectName(u"FolderBar"_s);
    bar->addWidget(m_button);
    return bar;
}

void FolderMenus::addRecents(QMenu *menu)
{
    QMenu *recents = menu->addMenu(tr("Open Recen&t"));
    recents->setToolTipsVisible(true);
    connect(recents, &QMenu::aboutToShow, this, [=, this] { fillRecents(recents); });
    fillRecents(recents);
}

void FolderMenus::fillRecents(QMenu *menu)
{
    m_button->buildMenu(); // which leaves out what has gone
    ZEVMenuItemRemoveAllFollowing::removeAllItems(menu);
    ZEVMenuRecents::fillWithRecentsItemURLs(menu, m_button->recentURLSet(),
                                            [this](const QUrl &url) { choose(url); });
    menu->addSeparator();
    menu->addAction(m_button->clearRecentsItem());
    m_button->clearRecentsItem()->setEnabled(!m_button->recentURLSet().isEmpty());
}

void FolderMenus::setFolder(const QString &folder)
{
    m_folder = folder;
    m_button->setURL(QUrl::fromLocalFile(folder));
}

/// The folder stays where the user keeps its changed texts, so the button goes back to it first.
void FolderMenus::choose(const QUrl &url)
{
    const QString folder = pathOf(url);
    m_button->setURL(m_folder.isEmpty() ? QUrl() : QUrl::fromLocalFile(m_folder));
    if (!folder.isEmpty() && folder != m_folder)
        Q_EMIT folderChosen(folder);
}

void FolderMenus::didSelectURL(ZEVURLPopUpButton *, const QUrl &url) { choose(url); }

void FolderMenus::willDisplayOpenPanel(ZEVURLPopUpButton *, ZEVOpenPanel &panel)
{
    panel.title = tr("Open Folder");
    panel.canChooseFiles = false;
    panel.directoryURL = QUrl::fromLocalFile(m_folder);
}
