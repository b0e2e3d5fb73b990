// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelText_p.h>

#include <QAbstractItemView>

#include <algorithm>

namespace {

/// Runs of rows, column by column: a selection of single cells would take a view seconds to work through.
class Runs {
public:
    void add(const QModelIndex &cell)
    {
        QItemSelection &runs = m_columns[cell.column()];
        if (runs.isEmpty() || !runs.last().isValid() || runs.last().parent() != cell.parent()
            || cell.row() > runs.last().bottom() + 1)
            runs.append(QItemSelectionRange(cell));
        else if (cell.row() > runs.last().bottom())
            runs.last() = QItemSelectionRange(runs.last().topLeft(), cell);
    }

    QItemSelection selection() const
    {
        QItemSelection all;
        for (const QItemSelection &runs : m_columns)
            all += runs;
        return all;
    }

private:
    QMap<int, QItemSelection> m_columns;
};

/// In text order, with cells that touch as one.
QList<ZEVRange> merged(QList<ZEVRange> ranges)
{
    std::ranges::sort(ranges, {}, &ZEVRange::location);
    QList<ZEVRange> result;
    for (const ZEVRange &range : std::as_const(ranges)) {
        if (!result.isEmpty() && result.last().end() == range.location)
            result.last().length += range.length;
        else if (range.length > 0)
            result.append(range);
    }
    return result;
}

} // namespace

ZEVItemModelFinderClient::ZEVItemModelFinderClient(QAbstractItemModel *model, QAbstractItemView *view,
                                                   ZEVTextFinder *finder)
    : QObject(view ? static_cast<QObject *>(view) : model)
    , m_model(model)
    , m_view(view)
    , m_finder(finder)
    , m_text(std::make_unique<ZEVItemModelText>(*model))
{
    finder->setClient(this);
    connect(finder, &ZEVTextFinder::searchPerformed, this, &ZEVItemModelFinderClient::noteSearch);
    connect(finder, &ZEVTextFinder::marksMatchesChanged, this, &ZEVItemModelFinderClient::repaint);
    watchModel();
}

ZEVItemModelFinderClient::~ZEVItemModelFinderClient()
{
    if (m_finder && m_finder->client() == this)
        m_finder->setClient(nullptr);
}

void ZEVItemModelFinderClient::watchModel()
{
    using Model = QAbstractItemModel;
    const auto note = &ZEVItemModelFinderClient::noteChange;
    connect(m_model, &Model::dataChanged, this, &ZEVItemModelFinderClient::noteDataChange);
    connect(m_model, &Model::rowsInserted, this, &ZEVItemModelFinderClient::noteRows);
    connect(m_model, &Model::rowsRemoved, this, note);
    connect(m_model, &Model::rowsMoved, this, note);
    connect(m_model, &Model::columnsInserted, this, note);
    connect(m_model, &Model::columnsRemoved, this, note);
    connect(m_model, &Model::columnsMoved, this, note);
    connect(m_model, &Model::layoutChanged, this, note);
    connect(m_model, &Model::modelReset, this, note);
    connect(m_model, &QObject::destroyed, this, note);
}

void ZEVItemModelFinderClient::setColumns(const QList<int> &columns)
{
    if (columns == m_text->columns())
        return;
    m_text->setColumns(columns);
    noteChange();
}

void ZEVItemModelFinderClient::setTextRole(int role)
{
    m_text->setRole(role);
    noteChange();
}

void ZEVItemModelFinderClient::noteChange()
{
    m_text->noteStructureChange();
    ++m_changeStamp;
    Q_EMIT textChanged();
}

/// What was found stays where it is when rows are added behind all others.
void ZEVItemModelFinderClient::noteRows(const QModelIndex &parent, int, int last)
{
    const bool matchesStay =
        m_searchedStamp == m_changeStamp && !parent.isValid() && last == m_model->rowCount() - 1;
    noteChange();
    if (matchesStay)
        m_searchedStamp = m_changeStamp;
}

void ZEVItemModelFinderClient::noteDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                              const QList<int> &roles)
{
    if (!roles.isEmpty() && !roles.contains(m_text->role()) && !roles.contains(Qt::EditRole))
        return;
    m_text->noteDataChange(topLeft, bottomRight);
    ++m_changeStamp;
    Q_EMIT textChanged();
}

void ZEVItemModelFinderClient::noteSearch()
{
    m_searchedStamp = m_changeStamp;
    followSelection();
    repaint();
}

void ZEVItemModelFinderClient::repaint()
{
    if (m_view)
        m_view->viewport()->update();
}

qsizetype ZEVItemModelFinderClient::stringLength() const { return m_model ? m_text->length() : 0; }

QString ZEVItemModelFinderClient::stringAtIndex(qsizetype index, ZEVRange &effectiveRange) const
{
    effectiveRange = {index, 0};
    return m_model ? m_text->cellAt(index, effectiveRange) : QString();
}

QModelIndex ZEVItemModelFinderClient::cellOfRange(const ZEVRange &range, ZEVRange *rangeInCell) const
{
    QModelIndex cell;
    ZEVRange place;
    if (m_model)
        m_text->cellAt(range.location, place, &cell);
    if (rangeInCell)
        *rangeInCell = {range.location - place.location, range.length};
    return cell;
}

QItemSelectionModel *ZEVItemModelFinderClient::selectionModel() const
{
    return m_view && m_model && m_view->model() == m_model ? m_view->selectionModel() : nullptr;
}

/// The view's selection is what the ranges made of it, wherever its cells are now. Without a view it always
/// is.
bool ZEVItemModelFinderClient::viewKeepsSelection() const
{
    const QItemSelectionModel *model = selectionModel();
    return !model || (model->currentIndex() == m_currentCell && model->selection() == m_selection);
}

bool ZEVItemModelFinderClient::selectionIsOurs() const
{
    return m_selectionStamp == m_changeStamp && viewKeepsSelection();
}

/// The selected match stays so wherever its cell is sorted to, as long as that keeps its text.
void ZEVItemModelFinderClient::followSelection()
{
    if (m_selectedRanges.size() != 1 || !m_currentCell.isValid() || !viewKeepsSelection()
        || m_text->text(m_currentCell) != m_selectedText)
        return;
    m_selectedRanges.first().location = m_text->placeOfCell(m_currentCell).location + m_locationInCell;
    m_selectionStamp = m_changeStamp;
}

QList<ZEVRange> ZEVItemModelFinderClient::selectedRanges() const
{
    if (selectionIsOurs())
        return m_selectedRanges;
    const QItemSelectionModel *model = selectionModel();
    if (!model)
        return {};
    QList<ZEVRange> ranges;
    for (const QModelIndex &cell : model->selectedIndexes())
        ranges.append(m_text->placeOfCell(cell));
    ranges = merged(ranges);
    if (ranges.isEmpty() && model->currentIndex().isValid())
        ranges.append({m_text->placeOfCell(model->currentIndex()).location, 0});
    return ranges;
}

void ZEVItemModelFinderClient::setSelectedRanges(const QList<ZEVRange> &ranges)
{
    m_selectedRanges = ranges;
    m_selectionStamp = m_changeStamp;
    if (QItemSelectionModel *model = selectionModel())
        selectCells(*model);
    repaint();
}

void ZEVItemModelFinderClient::selectCells(QItemSelectionModel &model)
{
    Runs runs;
    for (const ZEVRange &range : std::as_const(m_selectedRanges))
        if (const QModelIndex cell = cellOfRange(range); cell.isValid())
            runs.add(cell);
    QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::ClearAndSelect;
    if (m_view->selectionBehavior() == QAbstractItemView::SelectRows)
        flags |= QItemSelectionModel::Rows;
    if (!m_selectedRanges.isEmpty())
        model.setCurrentIndex(cellOfRange(m_selectedRanges.first()), QItemSelectionModel::NoUpdate);
    model.select(runs.selection(), flags);
    m_selection = model.selection();
    m_currentCell = model.currentIndex();
    m_selectedText = m_text->text(m_currentCell);
    m_locationInCell = m_selectedRanges.isEmpty()
        ? 0
        : m_selectedRanges.first().location - m_text->placeOfCell(m_currentCell).location;
}

void ZEVItemModelFinderClient::scrollSelectionToVisible()
{
    if (const QItemSelectionModel *model = selectionModel())
        m_view->scrollTo(model->currentIndex());
}

bool ZEVItemModelFinderClient::isEditable(const ZEVRange &range) const
{
    const QModelIndex cell = cellOfRange(range);
    return cell.flags().testFlag(Qt::ItemIsEditable)
        && cell.data(Qt::EditRole).toString() == m_text->text(cell);
}

QList<ZEVItemModelFinderClient::CellChange>
ZEVItemModelFinderClient::cellChanges(const QList<ZEVTextReplacement> &replacements) const
{
    QList<CellChange> changes;
    qsizetype growth = 0; // of the cell, by the replacements before
    for (const ZEVTextReplacement &replacement : replacements) {
        ZEVRange range;
        const QModelIndex cell = cellOfRange(replacement.range, &range);
        if (changes.isEmpty() || changes.last().index != cell) {
            const QString text = m_text->text(cell);
            changes.append({cell, text, text});
            growth = 0;
        }
        changes.last().after.replace(range.location + growth, range.length, replacement.after);
        growth += replacement.after.size() - range.length;
    }
    return changes;
}

bool ZEVItemModelFinderClient::replace(const QList<ZEVTextReplacement> &replacements, const QString &undoText)
{
    return m_model && write(cellChanges(replacements), undoText);
}

/// The rows may move while they are written, in a model that keeps them sorted.
bool ZEVItemModelFinderClient::write(const QList<CellChange> &changes, const QString &undoText)
{
    if (m_writer)
        return m_writer(changes, undoText);
    bool anyChanged = false;
    for (const CellChange &change : changes)
        if (m_model && change.index.isValid() && m_model->setData(change.index, change.after))
            anyChanged = true;
    return anyChanged;
}

ZEVCellMatches ZEVItemModelFinderClient::matchesInCell(const QModelIndex &index) const
{
    ZEVCellMatches result;
    if (!m_model || !m_finder || m_finder->client() != this || !m_finder->marksMatches()
        || m_searchedStamp != m_changeStamp)
        return result;
    const QList<ZEVRange> &matches = m_finder->foundMatches();
    const ZEVRange cell = m_text->placeOfCell(index);
    auto match = std::ranges::lower_bound(matches, cell.location, {}, &ZEVRange::location);
    const bool isOne = m_selectedRanges.size() == 1 && selectionIsOurs();
    for (; match != matches.end() && match->location < cell.end(); ++match) {
        if (isOne && *match == m_selectedRanges.first())
            result.current = result.ranges.size();
        result.ranges.append({match->location - cell.location, match->length});
    }
    return result;
}
