// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/menus/TrackMenus.h>

#include <tageditor/menus/GenreMenu.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/Menus/Locations/ZEVWorkspaceOpenWithMenu.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QDesktopServices>
#include <QMenuBar>
#include <QSet>
#include <QTableView>
#include <QUrl>

TrackMenus::TrackMenus(TrackTableModel *model, QTableView *table, TextEditing *editing)
    : QObject(table)
    , m_model(model)
    , m_table(table)
    , m_editing(editing)
    , m_genres(new GenreMenu(table))
{
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QTableView::customContextMenuRequested, this, &TrackMenus::showContextMenu);
    connect(m_genres, &QMenu::aboutToShow, this, &TrackMenus::checkGenreOfSelection);
    connect(m_genres, &GenreMenu::genreChosen, this, &TrackMenus::setGenre);
}

void TrackMenus::addGenreMenu(QMenuBar *bar) { bar->addMenu(m_genres); }

/// The applications are asked for when the submenu opens: reading the desktop's entries takes its time.
QMenu *TrackMenus::makeContextMenu()
{
    auto *menu = new QMenu(m_table);
    const QList<QUrl> files = selectedFiles();
    QMenu *openWith = menu->addMenu(tr("Open &With"));
    openWith->setDisabled(files.isEmpty());
    connect(openWith, &QMenu::aboutToShow, openWith,
            [=] { ZEVWorkspaceOpenWithMenu::setupMenu(openWith, files); });
    if (files.isEmpty())
        return menu;
    menu->addAction(tr("&Play"), menu, [=] { QDesktopServices::openUrl(files.first()); });
    menu->addAction(tr("&Open Containing Folder"), menu, [=] {
        QDesktopServices::openUrl(ZEVFileURL::byDeletingLastPathComponent(files.first()));
    });
    menu->addMenu(m_genres);
    menu->addSeparator();
    menu->addActions(m_fileActions);
    return menu;
}

void TrackMenus::showContextMenu(const QPoint &place)
{
    QMenu *menu = makeContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_table->viewport()->mapToGlobal(place));
}

QList<QUrl> TrackMenus::selectedFiles() const
{
    QList<QUrl> files;
    for (const int row : TableSelection::rows(*m_table->selectionModel()))
        files.append(ZEVFileURL::withPath(QByteArray::fromStdString(m_model->track(row).path.native())));
    return files;
}

void TrackMenus::setGenre(const QString &genre)
{
    QList<TextChange> changes;
    for (const int row : TableSelection::rows(*m_table->selectionModel())) {
        const Track &track = m_model->track(row);
        if (m_model->isEditable(row, TrackField::Genre) && track.text(TrackField::Genre) != genre)
            changes.append({track.id, TrackField::Genre, genre});
    }
    m_editing->change(tr("Genre"), changes);
}

/// None where they differ.
void TrackMenus::checkGenreOfSelection()
{
    QSet<QString> genres;
    for (const int row : TableSelection::rows(*m_table->selectionModel()))
        genres.insert(m_model->track(row).text(TrackField::Genre));
    m_genres->setGenre(genres.size() == 1 ? *genres.cbegin() : QString());
}
