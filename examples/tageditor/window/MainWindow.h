// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/FolderReader.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QItemSelectionModel>
#include <QMainWindow>

#include <functional>

class CellClipboard;
class FileActions;
class FileWatch;
class FilterField;
class Inspector;
class FolderMenus;
class MessageLabel;
class ProgressView;
class QLabel;
class QTableView;
class QToolBar;
class QuickOpen;
class TextEditing;
class TrackFind;
class ZEVTextFinder;
class TrackMenus;

/// The tracks of one folder in a table, with a bar to find text in them, and what changes them beside it.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Asks first where changed texts would be lost; the folder stays if the user wants to keep them.
    void openFolder(const QString &folder);

    /// A folder, or the folder of \a files, which are selected then.
    void open(const QStringList &files);

    /// The folder that was open last; empty when none was, or when it is not there any more.
    static QString lastFolder();

    /// Writes the changed texts into their files; false when some are left.
    bool save();

    /// What asks whether changed texts may be lost, and says so: a question in a dialog at first.
    void setDiscardQuestion(std::function<bool()> question) { m_mayDiscard = std::move(question); }

    const QString &folder() const { return m_folder; }
    const TrackTableModel &tracks() const { return m_model; }
    TrackFind &find() { return *m_find; }
    Inspector &inspector() { return *m_inspector; }
    QTableView &table() { return *m_table; }

Q_SIGNALS:
    /// The folder was read and searched; with a \a failure, it could not be.
    void folderRead(const QString &failure);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeMenus();
    void addFindActions(QMenu *menu);
    void addSelectActions(QMenu *menu);
    void addPanes(QMenu *menu);
    void addSteps(QMenu *menu);
    void step(int rows);
    void setUpTable();
    void addDocks();
    void addFolderBar();
    ZEVTextFinder *currentFinder();
    void setUpStatusBar();
    void watchReader();
    void watchTexts();

    void commitTyped();
    void chooseFolder();
    bool askToDiscard();
    void selectTracks(const QList<int> &trackIds);
    void selectAroundCurrent(QItemSelectionModel::SelectionFlag extent);
    void showProgress(qsizetype read, qsizetype total);
    void showSkippedFolder(const QString &folder, const QString &reason);
    void finishReading(const QString &failure);
    void stopReading();
    void showCounts();
    void keepColumns(int column, int before, int now);
    void fitColumns();
    void restoreFromDefaults();
    void remember() const;
    void showNoticed(int changed, int gone, int added);
    void updateWatch();
    void selectFiles();

    QString m_folder;
    QStringList m_filesToSelect; ///< once they are read
    bool m_isBatchRunning = false;
    bool m_hasOwnColumns = false; ///< as wide as the user has made them
    bool m_isFitting = false;
    QString m_firstSkipped; ///< tells of the first folder within that could not be listed
    int m_skippedFolders = 0;
    TrackTableModel m_model;
    FolderReader m_reader;
    std::function<bool()> m_mayDiscard;
    QTableView *m_table;
    TextEditing *m_editing;
    CellClipboard *m_clipboard;
    TrackFind *m_find;
    Inspector *m_inspector;
    FileActions *m_files;
    FileWatch *m_watch;
    FolderMenus *m_folders;
    QToolBar *m_folderBar = nullptr;
    FilterField *m_filter = nullptr;
    TrackMenus *m_trackMenus;
    QuickOpen *m_quickOpen;
    QLabel *m_counts;
    MessageLabel *m_problem;
    ProgressView *m_progress;
};
