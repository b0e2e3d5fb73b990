// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/files/FileBatch.h>
#include <tageditor/files/FileCommand.h>

#include <QList>

class ProgressView;
class QAction;
class QMenu;
class QTableView;
class TextEditing;
class TrackTableModel;

/// Lets the user rename the selected files, bring them to another folder, and take that back.
class FileActions : public QObject {
    Q_OBJECT

public:
    FileActions(TrackTableModel *model, QTableView *table, TextEditing *editing);
    ~FileActions() override;

    void addActions(QMenu *menu);

    /// Those for the selected files.
    const QList<QAction *> &actions() const { return m_forSelection; }

    /// The one that is open, in which renaming makes folders.
    void setFolder(const QString &folder) { m_folder = folder; }

    /// How far the batch is, with a way to cancel it; hidden while there is none.
    QWidget *progressView() const;

    /// The file at hand is finished or brought back.
    void cancelAndWait() { m_batch.cancelAndWait(); }

Q_SIGNALS:
    /// While a batch is under way, files are not where the table says.
    void runningChanged(bool isRunning);

    /// What was done, in one line; \a isProblem when something was not.
    void reported(const QString &message, bool isProblem);

private:
    void updateActions();
    void askForPattern();
    void askForFolder(bool isCopy);
    void trash();
    void run(const QString &name, const QList<FileChange> &changes);
    void takeBack(const FileCommand::Changes &changes);
    void repeat(const FileCommand::Changes &changes);
    void putBack();
    void start(const std::function<void()> &batch,
               const std::function<void(const QList<FileChange> &)> &then);
    void showProgress(double fraction, const QString &name);
    void finish(const FileBatch::Result &result);
    void followFiles(const FileBatch::Result &result);

    TrackTableModel *m_model;
    QTableView *m_table;
    TextEditing *m_editing;
    QString m_folder;
    FileJournal m_journal;
    FileBatch m_batch;
    ProgressView *m_progress;
    QList<QAction *> m_forSelection;
    QAction *m_putBack = nullptr;
    bool m_isTakingBack = false; ///< the batch at hand
    bool m_isOnStack = false; ///< the last batch is among the steps to undo
    std::function<void(const QList<FileChange> &)> m_then; ///< takes what the batch at hand has done
};
