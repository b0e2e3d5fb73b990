// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

class GenreMenu;
class QAction;
class QMenu;
class QMenuBar;
class QTableView;
class QUrl;
class TextEditing;
class TrackTableModel;

/// Menus for the selected tracks: the applications that open their files, and the genres they may have.
class TrackMenus : public QObject {
    Q_OBJECT

public:
    TrackMenus(TrackTableModel *model, QTableView *table, TextEditing *editing);

    void addGenreMenu(QMenuBar *bar);

    /// What the context menu has for the files beside its own.
    void setFileActions(const QList<QAction *> &actions) { m_fileActions = actions; }

    /// For the tracks that are selected as it is made; the caller owns it.
    QMenu *makeContextMenu();

private:
    void showContextMenu(const QPoint &place);
    QList<QUrl> selectedFiles() const;
    void setGenre(const QString &genre);
    void checkGenreOfSelection();

    TrackTableModel *m_model;
    QTableView *m_table;
    TextEditing *m_editing;
    GenreMenu *m_genres;
    QList<QAction *> m_fileActions;
};
