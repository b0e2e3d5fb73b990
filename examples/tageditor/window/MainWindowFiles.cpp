// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/MainWindow.h>

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTableView>

void MainWindow::open(const QStringList &files)
{
    const QFileInfo first(files.value(0));
    if (first.isDir() || !first.exists()) {
        m_filesToSelect.clear();
        return openFolder(first.filePath());
    }
    m_filesToSelect = files;
    const QString folder = first.absolutePath();
    if (folder == m_folder && !m_reader.isReading())
        selectFiles();
    else
        openFolder(folder);
}

/// The argument of a program and what is dropped may name a file in more ways than one.
void MainWindow::selectFiles()
{
    QSet<QString> files;
    for (const QString &file : std::exchange(m_filesToSelect, {}))
        files.insert(QFileInfo(file).canonicalFilePath());
    QList<int> ids;
    for (const Track &track : m_model.tracks()) {
        if (!files.isEmpty() && files.contains(QFileInfo(displayedPath(track.path)).canonicalFilePath()))
            ids.append(track.id);
    }
    selectTracks(ids);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (std::ranges::any_of(event->mimeData()->urls(), &QUrl::isLocalFile))
        event->setDropAction(Qt::CopyAction);
    event->setAccepted(event->mimeData()->hasUrls());
}

void MainWindow::dropEvent(QDropEvent *event)
{
    QStringList files;
    for (const QUrl &url : event->mimeData()->urls())
        files.append(url.toLocalFile());
    files.removeAll(QString());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!files.isEmpty()) // once the source has been answered, since a question may come
        QMetaObject::invokeMethod(
            this, [this, files] { open(files); }, Qt::QueuedConnection);
}

/// The whole rows, with the cursor in the first one's title.
void MainWindow::selectTracks(const QList<int> &trackIds)
{
    QItemSelection rows;
    QModelIndex title;
    for (const int id : trackIds) {
        const QModelIndex cell = m_model.index(m_model.rowOfTrack(id), int(TrackField::Title));
        rows.select(cell, cell);
        title = title.isValid() ? title : cell;
    }
    if (!title.isValid())
        return;
    m_table->selectionModel()->setCurrentIndex(title, QItemSelectionModel::NoUpdate);
    m_table->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table->scrollTo(title, QAbstractItemView::PositionAtCenter);
    m_table->setFocus(Qt::OtherFocusReason);
}
