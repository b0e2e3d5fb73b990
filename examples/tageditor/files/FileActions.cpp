// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileActions.h>

#include <tageditor/files/RenameDialog.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TrackTableModel.h>
#include <tageditor/window/ProgressView.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

#include <QAction>
#include <QMenu>
#include <QProgressBar>
#include <QTableView>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 100;

QList<Track> selectedTracks(const QTableView &table, const TrackTableModel &model)
{
    QList<Track> tracks;
    for (const int row : TableSelection::rows(*table.selectionModel()))
        tracks.append(model.track(row));
    return tracks;
}

QUrl urlOf(const Track &track)
{
    return ZEVFileURL::withPath(QByteArray::fromStdString(track.path.native()));
}

} // namespace

FileActions::FileActions(TrackTableModel *model, QTableView *table, TextEditing *editing)
    : QObject(table)
    , m_model(model)
    , m_table(table)
    , m_editing(editing)
    , m_journal(FileJournal::standardPath())
    , m_batch(m_journal)
    , m_progress(new ProgressView(tr("Progress of files")))
{
    m_progress->bar()->setRange(0, Steps);
    connect(m_progress, &ProgressView::cancelled, &m_batch, &FileBatch::cancel);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileActions::updateActions);
    connect(model, &TrackTableModel::cleared, this, [this] {
        m_isOnStack = false;
        updateActions();
    });
    connect(&m_batch, &FileBatch::progressed, this, &FileActions::showProgress);
    connect(&m_batch, &FileBatch::finished, this, &FileActions::finish);
}

/// The table is going, too: nobody follows what the batch still does.
FileActions::~FileActions()
{
    disconnect(&m_batch, nullptr, this, nullptr);
    m_batch.cancelAndWait();
}

QWidget *FileActions::progressView() const { return m_progress; }

void FileActions::addActions(QMenu *menu)
{
    m_forSelection = {
        menu->addAction(tr("Re&name Files…"), QKeySequence(u"Ctrl+Shift+R"_s), this,
                        &FileActions::askForPattern),
        menu->addAction(tr("&Move to Folder…"), this, [this] { askForFolder(false); }),
        menu->addAction(tr("&Copy to Folder…"), this, [this] { askForFolder(true); }),
        menu->addAction(tr("Move to Tras&h"), this, &FileActions::trash),
    };
    m_putBack = menu->addAction(tr("Put Files &Back"), this, &FileActions::putBack);
    updateActions();
}

void FileActions::updateActions()
{
    const bool isIdle = !m_batch.isRunning();
    const bool isPossible = isIdle && m_table->selectionModel()->hasSelection();
    for (QAction *action : std::as_const(m_forSelection))
        action->setEnabled(isPossible);
    if (m_putBack) // for what the steps to undo know nothing of any more
        m_putBack->setEnabled(isIdle && !m_isOnStack && !m_journal.isEmpty());
}

void FileActions::askForPattern()
{
    auto *dialog = new RenameDialog(selectedTracks(*m_table, *m_model), m_folder, m_table->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { run(tr("Rename Files"), dialog->changes()); });
    dialog->open();
}

void FileActions::askForFolder(bool isCopy)
{
    ZEVOpenPanel panel;
    panel.title = isCopy ? tr("Copy to Folder") : tr("Move to Folder");
    panel.prompt = isCopy ? tr("Copy") : tr("Move");
    if (panel.runModal() != ZEVOpenPanel::OKResponse)
        return;
    QList<FileChange> changes;
    for (const Track &track : selectedTracks(*m_table, *m_model)) {
        const QUrl source = urlOf(track);
        const QUrl target =
            ZEVFileURL::byAppendingPathComponent(panel.URL, ZEVFileURL::lastPathComponent(source));
        changes.append({source, target, {}, isCopy, track.id});
    }
    run(panel.title, changes);
}

void FileActions::trash()
{
    QList<FileChange> changes;
    for (const Track &track : selectedTracks(*m_table, *m_model)) {
        FileChange change{urlOf(track), {}, {}, false, track.id};
        change.isTrashed = true;
        changes.append(change);
    }
    run(tr("Move to Trash"), changes);
}

void FileActions::run(const QString &name, const QList<FileChange> &changes)
{
    start([this, changes] { m_batch.run(changes); },
          [this, name](const QList<FileChange> &done) {
              if (done.isEmpty())
                  return;
              m_isOnStack = true;
              m_editing->undoStack()->push(new FileCommand(
                  name, std::make_shared<QList<FileChange>>(done),
                  [this](const FileCommand::Changes &batch) { takeBack(batch); },
                  [this](const FileCommand::Changes &batch) { repeat(batch); }));
          });
}

void FileActions::takeBack(const FileCommand::Changes &changes)
{
    m_isTakingBack = true;
    start([this, changes] { m_batch.undo(*changes); }, {});
}

/// Names may be taken by now, so what is done can be something else.
void FileActions::repeat(const FileCommand::Changes &changes)
{
    start([this, changes] { m_batch.run(*changes); },
          [changes](const QList<FileChange> &done) { *changes = done; });
}

void FileActions::putBack()
{
    m_isTakingBack = true;
    start([this] { m_batch.undo(); }, {});
}

/// As long as a batch is under way, nothing else is undone or done again.
void FileActions::start(const std::function<void()> &batch,
                        const std::function<void(const QList<FileChange> &)> &then)
{
    if (m_batch.isRunning())
        return;
    m_then = then;
    m_editing->setUndoBlocked(true);
    Q_EMIT runningChanged(true);
    batch();
    updateActions();
}

void FileActions::showProgress(double fraction, const QString &name)
{
    m_progress->show();
    m_progress->bar()->setValue(qRound(fraction * Steps));
    m_progress->setToolTip(Qt::convertFromPlainText(name));
}

void FileActions::finish(const FileBatch::Result &result)
{
    m_progress->hide();
    followFiles(result);
    m_isTakingBack = false;
    Q_EMIT runningChanged(false);
    m_editing->setUndoBlocked(false);
    if (const auto then = std::exchange(m_then, {}))
        then(result.done);
    updateActions();
    QString text = tr("%Ln files done", nullptr, int(result.done.size()));
    if (result.skipped > 0)
        text += tr(", %Ln skipped", nullptr, result.skipped);
    if (result.isStopped)
        text += tr(", stopped");
    if (!result.errors.isEmpty())
        text = tr("%1, %Ln failed: %2", nullptr, int(result.errors.size()))
                   .arg(text, ZEVFileErrors::fullDescription(result.errors.first()));
    Q_EMIT reported(text, !result.errors.isEmpty());
}

/// A track stays the same wherever its file goes; of a copy the table knows nothing.
void FileActions::followFiles(const FileBatch::Result &result)
{
    QHash<QByteArray, int> ids;
    for (const Track &track : m_model->tracks())
        ids.insert(QByteArray::fromStdString(track.path.native()), track.id);
    for (const FileChange &change : result.done) {
        const int id = ids.value(ZEVFileURL::path(change.source), -1);
        if (change.isCopy || id < 0)
            continue;
        m_model->setTrashed(id, change.isTrashed && !m_isTakingBack);
        m_model->setPath(id, ZEVFileURL::path(change.destination).toStdString());
        ids.remove(ZEVFileURL::path(change.source));
        ids.insert(ZEVFileURL::path(change.destination), id);
    }
}
