// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/CellClipboard.h>

#include <tageditor/text/CellTable.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TagValues.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The same table with the values of every tag told apart; other programs get a mark between them.
const QString CellsType = u"application/x-tageditor-cells"_s;

QString shown(QString text) { return text.replace(TagValues::Separator, TagValues::ShownSeparator); }
QString taken(QString text) { return text.replace(TagValues::ShownSeparator, TagValues::Separator); }

QList<QStringList> clipboardTexts()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    return data->hasFormat(CellsType) ? CellTable::rows(QString::fromUtf8(data->data(CellsType)))
                                      : CellTable::rows(taken(data->text()));
}

/// As many as are selected when \a size goes into it, so that a text fills all of them.
qsizetype extent(qsizetype selected, qsizetype size) { return selected % size == 0 ? selected : size; }

} // namespace

CellClipboard::CellClipboard(TrackTableModel *model, QTableView *table, TextEditing *editing)
    : QObject(table)
    , m_model(model)
    , m_table(table)
    , m_editing(editing)
{
}

void CellClipboard::addActions(QMenu *menu)
{
    const auto add = [&](const QString &text, QKeySequence::StandardKey key, const auto &does) {
        QAction *action = menu->addAction(text, this, does);
        action->setShortcuts(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        m_table->addAction(action);
    };
    add(tr("Cut"), QKeySequence::Cut, [this] {
        copy();
        empty(tr("Cut"));
    });
    add(tr("Copy"), QKeySequence::Copy, [this] { copy(); });
    add(tr("Paste"), QKeySequence::Paste, [this] { paste(); });
    add(tr("Clear"), QKeySequence::Delete, [this] { empty(tr("Clear")); });
}

/// Those that are shown, from the left.
QList<int> CellClipboard::columns() const
{
    const QHeaderView *header = m_table->horizontalHeader();
    QList<int> columns;
    for (int place = 0; place < header->count(); ++place) {
        if (const int column = header->logicalIndex(place); !header->isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

/// The smallest rectangle around the selected cells; others in it are left empty.
QList<QStringList> CellClipboard::selectedTexts() const
{
    const QItemSelectionModel *selection = m_table->selectionModel();
    QList<int> columns = this->columns();
    columns.removeIf([=](int column) { return !selection->columnIntersectsSelection(column, {}); });
    QList<QStringList> texts;
    for (const int row : TableSelection::rows(*selection)) {
        QStringList line;
        for (const int column : columns) {
            const QModelIndex cell = m_model->index(row, column);
            line.append(selection->isSelected(cell) ? cell.data(Qt::EditRole).toString() : QString());
        }
        texts.append(line);
    }
    return texts;
}

void CellClipboard::copy()
{
    const QString text = CellTable::text(selectedTexts());
    if (!m_table->selectionModel()->hasSelection())
        return;
    auto *data = new QMimeData;
    data->setText(shown(text));
    data->setData(CellsType, text.toUtf8());
    QGuiApplication::clipboard()->setMimeData(data);
}

void CellClipboard::empty(const QString &name)
{
    TableSelection::Cells cells = TableSelection::editableCells(*m_table->selectionModel(), *m_model);
    for (TextChange &cell : cells)
        cell.text.clear();
    m_editing->change(name, cells);
}

void CellClipboard::paste()
{
    const QList<QStringList> texts = clipboardTexts();
    if (texts.isEmpty())
        return;
    if (texts.size() == 1 && texts.first().size() == 1) { // into whatever cells are selected
        TableSelection::Cells cells = TableSelection::editableCells(*m_table->selectionModel(), *m_model);
        for (TextChange &cell : cells)
            cell.text = texts.first().first();
        if (cells.isEmpty())
            Q_EMIT refused(tr("Nothing can be pasted here"));
        m_editing->change(tr("Paste"), cells);
    } else {
        fill(texts);
    }
}

/// From the first selected cell on.
void CellClipboard::fill(const QList<QStringList> &texts)
{
    const QItemSelectionModel *selection = m_table->selectionModel();
    const QList<int> rows = TableSelection::rows(*selection);
    const QList<int> columns = this->columns();
    const auto isSelected = [=](int column) { return selection->columnIntersectsSelection(column, {}); };
    const auto left = std::ranges::find_if(columns, isSelected) - columns.begin();
    if (rows.isEmpty())
        return;
    const qsizetype bottom =
        std::min<qsizetype>(m_model->rowCount(), rows.first() + extent(rows.size(), texts.size()));
    const qsizetype selectedColumns = std::ranges::count_if(columns, isSelected);
    QList<TextChange> changes;
    for (qsizetype row = rows.first(); row < bottom; ++row) {
        const QStringList &line = texts.at((row - rows.first()) % texts.size());
        const qsizetype right = std::min(columns.size(), left + extent(selectedColumns, line.size()));
        for (qsizetype place = left; place < right; ++place)
            changes.append({m_model->track(int(row)).id, TrackField(columns.at(place)),
                            line.at((place - left) % line.size())});
    }
    if (!m_editing->change(tr("Paste"), changes))
        Q_EMIT refused(tr("Nothing can be pasted here"));
}
