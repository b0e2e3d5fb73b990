// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/MainWindow.h>

#include <tageditor/files/FileActions.h>
#include <tageditor/files/FileWatch.h>
#include <tageditor/find/TrackFind.h>
#include <tageditor/inspector/Inspector.h>
#include <tageditor/menus/FolderMenus.h>
#include <tageditor/menus/TrackMenus.h>
#include <tageditor/text/CellClipboard.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableColumns.h>
#include <tageditor/tracks/TrackSaving.h>
#include <tageditor/window/MessageLabel.h>
#include <tageditor/window/ProgressView.h>
#include <tageditor/window/QuickOpen.h>
#include <tageditor/window/SizeLabel.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString GeometryKey = u"MainWindowGeometry"_s;
const QString StateKey = u"MainWindowState"_s;
const QString FolderKey = u"LastFolder"_s;

/// The widths of columns in average characters: what one begins with, and what its contents may make of it.
constexpr std::array FirstWidths{24, 24, 22, 20, 8, 8, 14, 30, 22, 20, 8};
constexpr int NarrowestColumn = 6;
constexpr int WidestColumn = 36;
constexpr int ColumnPadding = 2;

/// How many rows are looked at for the widths, besides those in view.
constexpr int RowsMeasured = 200;

/// How long a passing message stands in the status bar, in milliseconds.
constexpr int MessageDuration = 6000;

/// What a folder may be named is told from the place where the title shows that texts have changed.
QString withModifiedMarker(QString title) { return title.replace(u"[*]"_s, u"[*][*]"_s) + u"[*]"_s; }

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_mayDiscard([this] { return askToDiscard(); })
    , m_table(new QTableView)
    , m_counts(new QLabel)
    , m_problem(new MessageLabel)
    , m_progress(new ProgressView(tr("Reading progress")))
{
    setAcceptDrops(true);
    setUpTable();
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, m_table->viewport(),
            qOverload<>(&QWidget::update)); // of a row more is drawn than its selected cells
    m_editing = new TextEditing(&m_model, m_table);
    m_clipboard = new CellClipboard(&m_model, m_table, m_editing);
    m_find = new TrackFind(&m_model, m_table, m_editing);
    setCentralWidget(m_find);
    m_files = new FileActions(&m_model, m_table, m_editing);
    m_watch = new FileWatch(&m_model, this);
    m_folders = new FolderMenus(this);
    m_trackMenus = new TrackMenus(&m_model, m_table, m_editing);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, &MainWindow::showCounts);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &MainWindow::showCounts);
    m_quickOpen = new QuickOpen(&m_model, this);
    addFolderBar();
    setUpStatusBar();
    addDocks();
    makeMenus();
    watchReader();
    watchTexts();
    restoreFromDefaults();
    m_table->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpTable()
{
    m_table->setAccessibleName(tr("Tracks"));
    m_table->setModel(&m_model);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_table->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false); // so that Tab leaves the table
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setResizeContentsPrecision(RowsMeasured);
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->horizontalHeader()->setSortIndicatorClearable(true);
    m_table->setSortingEnabled(true);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const int characters = FirstWidths.at(std::min(size_t(column), FirstWidths.size() - 1));
        m_table->setColumnWidth(column, characters * m_table->fontMetrics().averageCharWidth());
    }
}

void MainWindow::setUpStatusBar()
{
    m_counts->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0, 0);
    statusBar()->addWidget(m_counts);
    statusBar()->addWidget(m_problem, 1);
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_files->progressView());
    statusBar()->addPermanentWidget(new SizeLabel(&m_model, m_table->selectionModel()));
}

void MainWindow::watchReader()
{
    connect(&m_reader, &FolderReader::tracksRead, &m_model, &TrackTableModel::append);
    connect(&m_reader, &FolderReader::progressed, this, &MainWindow::showProgress);
    connect(m_progress, &ProgressView::cancelled, this, &MainWindow::stopReading);
    connect(&m_reader, &FolderReader::finished, this, &MainWindow::finishReading);
    connect(&m_reader, &FolderReader::folderSkipped, this, &MainWindow::showSkippedFolder);
}

void MainWindow::watchTexts()
{
    const auto showModified = [this] { setWindowModified(m_model.hasChanges()); };
    connect(&m_model, &TrackTableModel::changesChanged, this, showModified);
    const auto showShortly = [this](const QString &text) { statusBar()->showMessage(text, MessageDuration); };
    connect(m_editing, &TextEditing::nothingDone, this, showShortly);
    connect(m_clipboard, &CellClipboard::refused, this, showShortly);
    connect(m_files, &FileActions::reported, m_problem, &MessageLabel::showMessage);
    connect(m_files, &FileActions::runningChanged, this, [this](bool isRunning) {
        m_isBatchRunning = isRunning;
        updateWatch();
    });
    connect(m_watch, &FileWatch::noticed, this, &MainWindow::showNoticed);
    connect(m_folders, &FolderMenus::folderChosen, this, &MainWindow::openFolder);
    connect(m_quickOpen, &QuickOpen::trackChosen, this, [this](int id) { selectTracks({id}); });
}

/// What this program reads or moves itself is no news.
void MainWindow::updateWatch() { m_watch->setPaused(m_isBatchRunning || m_reader.isReading()); }

/// What stands in an open editor is the user's, whatever ends it: a cell's is otherwise only taken over when
/// the focus goes.
void MainWindow::commitTyped()
{
    m_inspector->commit();
    QWidget *editor = m_table->indexWidget(m_table->currentIndex());
    if (!editor)
        return;
    QAbstractItemDelegate *delegate = m_table->itemDelegate();
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor);
}

void MainWindow::openFolder(const QString &folder)
{
    commitTyped();
    if (m_model.hasChanges() && !m_mayDiscard())
        return;
    m_folder = QDir::cleanPath(QDir(folder).absolutePath());
    m_folders->setFolder(m_folder);
    m_files->setFolder(m_folder);
    setWindowTitle(withModifiedMarker(QDir(m_folder).dirName()));
    m_skippedFolders = 0;
    m_firstSkipped.clear();
    m_problem->showMessage({}, false);
    m_editing->clear();
    m_model.clear();
    m_progress->show();
    m_reader.readFolder(m_folder);
    updateWatch();
}

void MainWindow::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open Folder"), m_folder);
    if (!folder.isEmpty())
        openFolder(folder);
}

bool MainWindow::askToDiscard()
{
    QMessageBox question(QMessageBox::Warning, tr("Save Changes"), tr("Save the changes?"),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(tr("Texts were changed. They will be lost if they are not saved."));
    question.setDefaultButton(QMessageBox::Save);
    const int answer = question.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

bool MainWindow::save()
{
    commitTyped();
    return TrackSaving::save(&m_model, this);
}

void MainWindow::showProgress(qsizetype read, qsizetype total)
{
    m_progress->bar()->setRange(0, int(total)); // the bar of an empty range tells that it is not known yet
    m_progress->bar()->setValue(int(read));
    showCounts();
}

void MainWindow::showSkippedFolder(const QString &folder, const QString &reason)
{
    if (++m_skippedFolders == 1)
        m_firstSkipped = tr("Not read: %1 (%2)").arg(folder, reason);
    const QString text = m_skippedFolders == 1
        ? m_firstSkipped
        : tr("%1 and other folders (%2 in all)").arg(m_firstSkipped, QLocale().toString(m_skippedFolders));
    m_problem->showMessage(text, true);
}

void MainWindow::finishReading(const QString &failure)
{
    m_progress->hide();
    const QHeaderView *header = m_table->horizontalHeader();
    if (header->sortIndicatorSection() >= 0)
        m_model.sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    m_find->actor().searchAgainSoon();
    if (failure.isEmpty())
        m_watch->setFolder(m_folder);
    updateWatch();
    selectFiles();
    showCounts();
    if (!m_hasOwnColumns)
        fitColumns();
    if (!failure.isEmpty())
        m_problem->showMessage(
            tr("The folder “%1” could not be read: %2").arg(QDir::toNativeSeparators(m_folder), failure),
            true);
    Q_EMIT folderRead(failure);
}

/// What was read so far stays.
void MainWindow::stopReading()
{
    m_reader.cancel();
    finishReading({});
    m_watch->setFolder({}); // those that are missing are no news
    m_problem->showMessage(tr("Reading was stopped: tracks are missing"), true);
}

void MainWindow::showNoticed(int changed, int gone, int added)
{
    QStringList texts;
    if (added > 0)
        texts.append(tr("%Ln new files", nullptr, added));
    if (changed > 0)
        texts.append(tr("%Ln files were changed by another program and read again", nullptr, changed));
    if (gone > 0)
        texts.append(tr("%Ln files are not there any more", nullptr, gone));
    m_problem->showMessage(texts.join(u"; "_s), gone > 0);
    showCounts();
}

void MainWindow::showCounts()
{
    const int total = m_model.numberOfTracks();
    QString text = tr("%Ln tracks", nullptr, total);
    if (m_model.rowCount() < total)
        text = tr("%L1 of %2", "tracks that are shown, of so many tracks").arg(m_model.rowCount()).arg(text);
    if (m_model.numberOfUnreadable() > 0)
        text = tr("%1, %Ln unreadable", nullptr, m_model.numberOfUnreadable()).arg(text);
    m_counts->setText(text);
}

/// What the user makes of a width holds for all folders.
void MainWindow::keepColumns(int column, int before, int now)
{
    const bool isStretched = column == TableColumns::lastShown(m_table);
    if (before != 0 && now != 0 && !isStretched && !m_isFitting) // else a column is shown or hidden
        m_hasOwnColumns = true;
}

void MainWindow::fitColumns()
{
    const QScopedValueRollback fitting(m_isFitting, true);
    const int character = m_table->fontMetrics().averageCharWidth();
    m_table->resizeColumnsToContents();
    for (int column = 0; column < m_model.columnCount(); ++column) {
        if (column == TableColumns::lastShown(m_table) || m_table->isColumnHidden(column))
            continue;
        const int width = m_table->columnWidth(column) + ColumnPadding * character;
        m_table->setColumnWidth(column,
                                std::clamp(width, NarrowestColumn * character, WidestColumn * character));
    }
}

void MainWindow::restoreFromDefaults()
{
    const ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    m_hasOwnColumns = TableColumns::restore(m_table);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionResized, this, &MainWindow::keepColumns);
    restoreState(defaults->objectForKey(StateKey).toByteArray());
    if (restoreGeometry(defaults->objectForKey(GeometryKey).toByteArray()))
        return;
    const QSize wanted(fontMetrics().averageCharWidth() * 210, fontMetrics().height() * 44);
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

void MainWindow::remember() const
{
    ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    defaults->setObject(saveGeometry(), GeometryKey);
    defaults->setObject(saveState(), StateKey);
    defaults->setObject(m_folder, FolderKey);
    TableColumns::remember(m_table, m_hasOwnColumns);
}

QString MainWindow::lastFolder()
{
    const QString folder = ZEVUserDefaults::standardUserDefaults()->objectForKey(FolderKey).toString();
    return QDir(folder).exists() ? folder : QString();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    commitTyped();
    if (m_model.hasChanges() && !m_mayDiscard()) {
        event->ignore();
        return;
    }
    m_files->cancelAndWait();
    m_reader.cancel();
    remember();
    QMainWindow::closeEvent(event);
}
