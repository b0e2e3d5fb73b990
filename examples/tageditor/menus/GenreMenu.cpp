// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/menus/GenreMenu.h>

#include <tageditor/tracks/NaturalOrder.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>

#include <QLineEdit>
#include <QWidgetAction>

#include <id3v1genres.h>

namespace {

QStringList genres()
{
    QStringList names;
    for (const TagLib::String &name : TagLib::ID3v1::genreList())
        names.append(QString::fromStdWString(name.toWString()));
    QStringList ordered;
    for (const int index : naturalOrder(names))
        ordered.append(names.at(index));
    return ordered;
}

} // namespace

GenreMenu::GenreMenu(QWidget *parent)
    : QMenu(tr("Gen&re"), parent)
    , m_client(m_filter.newDelegatedClient())
{
    m_filter.setAutofocus(true);
    addAction(m_filter.filterMenuItem());
    for (const QString &genre : genres())
        m_client->menuItems.append(ZEVMenuItemBlockAdditions::itemWithTitle(
            genre, [this, genre](QAction *) { Q_EMIT genreChosen(genre); }, this));
    m_filter.clearFilterAndNotifyDelegate();
    connect(this, &QMenu::aboutToHide, &m_filter, &ZEVMenuFilterViewController::clearFilterAndNotifyDelegate,
            Qt::QueuedConnection);
}

GenreMenu::~GenreMenu()
{
    m_filter.setDelegate(nullptr);
    removeAction(m_filter.filterMenuItem());
}

void GenreMenu::setGenre(const QString &genre)
{
    if (m_checked)
        ZEVMenuItem::setState(m_checked, ZEVMenuItem::Off);
    m_checked = nullptr;
    for (QAction *item : std::as_const(m_client->menuItems)) {
        if (ZEVMenuItem::title(item) == genre)
            m_checked = item;
    }
    if (m_checked)
        ZEVMenuItem::setState(m_checked, ZEVMenuItem::On);
}
