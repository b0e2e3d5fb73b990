// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkDock.h>
#include <tageditor/files/FileActions.h>
#include <tageditor/find/TrackFind.h>
#include <tageditor/inspector/Inspector.h>
#include <tageditor/menus/FolderMenus.h>
#include <tageditor/menus/TrackMenus.h>
#include <tageditor/text/CellClipboard.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableColumns.h>
#include <tageditor/window/FilterField.h>
#include <tageditor/window/MainWindow.h>
#include <tageditor/window/QuickOpen.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderMenu.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QTableView>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

/// In average characters, at first.
constexpr int TagsWidth = 42;

} // namespace

void MainWindow::addDocks()
{
    m_inspector = new Inspector(&m_model, m_table->selectionModel(), m_editing);
    auto *dock = new QDockWidget(tr("Tags"), this);
    dock->setObjectName(u"TagsDock"_s);
    auto *scrolled = new QScrollArea; // the window may be low
    scrolled->setWidget(m_inspector);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    scrolled->setMinimumWidth(m_inspector->minimumSizeHint().width() + bar);
    const auto *inspector = m_inspector;
    connect(qApp, &QApplication::focusChanged, inspector, [=](const QWidget *, QWidget *now) {
        if (inspector->isAncestorOf(now)) // what is typed is to be seen, however the focus came
            scrolled->ensureWidgetVisible(now);
    });
    dock->setWidget(scrolled);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    auto *artwork = new ArtworkDock(&m_model, m_table, m_editing->undoStack());
    addDockWidget(Qt::RightDockWidgetArea, artwork);
    resizeDocks({dock, artwork}, {m_inspector->sizeHint().height(), 1}, Qt::Vertical); // the tags come first
    resizeDocks({dock}, {fontMetrics().averageCharWidth() * TagsWidth}, Qt::Horizontal);
}

void MainWindow::addFolderBar()
{
    m_folderBar = m_folders->makeToolBar();
    auto *space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_filter = new FilterField(&m_model, m_table, m_find);
    connect(m_filter, &FilterField::filtered, this, &MainWindow::showCounts);
    m_folderBar->addWidget(space);
    m_folderBar->addWidget(m_filter);
    addToolBar(m_folderBar);
}

void MainWindow::makeMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open Folder…"), QKeySequence(u"Ctrl+O"_s), this, &MainWindow::chooseFolder);
    m_folders->addRecents(file);
    file->addAction(tr("&Reload Folder"), QKeySequence(u"F5"_s), this, [this] { openFolder(m_folder); });
    file->addAction(tr("&Save"), QKeySequence(u"Ctrl+S"_s), this, &MainWindow::save);
    file->addSeparator();
    m_files->addActions(file);
    m_trackMenus->setFileActions(m_files->actions());
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence(u"Ctrl+Q"_s), this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    m_editing->addUndoActions(edit);
    edit->addSeparator();
    m_clipboard->addActions(edit);
    edit->addSeparator();
    addSelectActions(edit);
    edit->addSeparator();
    addFindActions(edit);
    m_editing->addTransforms(menuBar()->addMenu(tr("Te&xt")));
    addPanes(menuBar()->addMenu(tr("&View")));
    m_trackMenus->addGenreMenu(menuBar());
}

void MainWindow::addFindActions(QMenu *menu)
{
    ZEVTextFinderMenu::addItems(menu, [this] { return currentFinder(); });
    menu->addAction(tr("Find in Fi&elds…"), QKeySequence(u"Ctrl+Shift+F"_s), m_find, &TrackFind::showPanel);
    menu->addAction(tr("Preview Replace&ments…"), QKeySequence(u"Ctrl+Shift+H"_s), m_find,
                    &TrackFind::reviewReplacements);
    QAction *open =
        menu->addAction(tr("&Quick Open…"), QKeySequence(u"Ctrl+K"_s), m_quickOpen, &QuickOpen::open);
    m_folderBar->insertAction(m_folderBar->actions().at(1), open);
}

/// What stands around the table can be hidden, and comes back from here.
void MainWindow::addPanes(QMenu *menu)
{
    for (const QDockWidget *dock : findChildren<QDockWidget *>())
        menu->addAction(dock->toggleViewAction());
    menu->addAction(m_folderBar->toggleViewAction());
    menu->addSeparator();
    menu->addAction(tr("&Filter"), QKeySequence(u"Ctrl+L"_s), m_filter, qOverload<>(&QWidget::setFocus));
    QAction *matches = menu->addAction(tr("Only Tracks with &Matches"));
    matches->setCheckable(true);
    connect(matches, &QAction::toggled, m_filter, &FilterField::setShowsOnlyMatches);
    addSteps(menu);
    TableColumns::setMenu(m_table, menu->addMenu(tr("&Columns")));
}

/// From wherever one types: what was typed is taken over.
void MainWindow::addSteps(QMenu *menu)
{
    menu->addAction(tr("&Next Track"), QKeySequence(u"Ctrl+PgDown"_s), this, [this] { step(1); });
    menu->addAction(tr("&Previous Track"), QKeySequence(u"Ctrl+PgUp"_s), this, [this] { step(-1); });
}

void MainWindow::step(int rows)
{
    const QModelIndex current = m_table->currentIndex();
    const QModelIndex next = m_model.index(current.row() + rows, std::max(current.column(), 0));
    if (next.isValid())
        m_table->selectionModel()->setCurrentIndex(next, QItemSelectionModel::ClearAndSelect);
}

/// A click on a header sorts, so rows and columns are selected from the cell that has the cursor, by the keys
/// that spreadsheets have for it. Elsewhere than in the table these keys keep their meaning.
void MainWindow::addSelectActions(QMenu *menu)
{
    QAction *all = menu->addAction(tr("Select &All"), m_table, &QTableView::selectAll);
    all->setShortcuts(QKeySequence::SelectAll);
    QAction *row = menu->addAction(tr("Select Ro&w"), QKeySequence(u"Shift+Space"_s), this,
                                   [this] { selectAroundCurrent(QItemSelectionModel::Rows); });
    QAction *column = menu->addAction(tr("Select &Column"), QKeySequence(u"Ctrl+Space"_s), this,
                                      [this] { selectAroundCurrent(QItemSelectionModel::Columns); });
    for (QAction *action : {all, row, column}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        m_table->addAction(action);
    }
}

void MainWindow::selectAroundCurrent(QItemSelectionModel::SelectionFlag extent)
{
    QItemSelectionModel *selection = m_table->selectionModel();
    QItemSelection around = selection->selection();
    if (!selection->isSelected(m_table->currentIndex()))
        around.select(m_table->currentIndex(), m_table->currentIndex());
    selection->select(around, QItemSelectionModel::ClearAndSelect | extent);
}

/// The keys for finding belong to the editor of comments while one is in it, and to the table elsewhere.
ZEVTextFinder *MainWindow::currentFinder()
{
    ZEVFindPlace &comment = m_inspector->commentFind();
    return comment.hasFocusWithin() ? &comment.finder() : &m_find->finder();
}
