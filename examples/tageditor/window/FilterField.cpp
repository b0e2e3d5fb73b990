// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/FilterField.h>

#include <tageditor/find/TrackFind.h>
#include <tageditor/tracks/TableSelection.h>
#include <tageditor/tracks/TrackFilter.h>

#include <QKeyEvent>
#include <QTableView>

namespace {

/// Keeps what is selected, and where the cursor is, over a filtering.
class KeptSelection {
public:
    KeptSelection(const TrackTableModel &model, QTableView &table)
        : m_model(model)
        , m_table(table)
        , m_current(idAt(table.currentIndex()))
        , m_column(table.currentIndex().column())
    {
        for (const QModelIndex &cell : table.selectionModel()->selectedIndexes())
            m_cells.append({idAt(cell), cell.column()});
    }

    void restore() const
    {
        QItemSelection selection;
        for (const auto &[id, column] : m_cells) {
            if (const QModelIndex cell = m_model.index(m_model.rowOfTrack(id), column); cell.isValid())
                selection.append(QItemSelectionRange(cell));
        }
        const QModelIndex current = m_model.index(m_model.rowOfTrack(m_current), m_column);
        m_table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        m_table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        if (current.isValid())
            m_table.scrollTo(current);
    }

private:
    int idAt(const QModelIndex &cell) const { return cell.isValid() ? m_model.track(cell.row()).id : -1; }

    const TrackTableModel &m_model;
    QTableView &m_table;
    int m_current;
    int m_column;
    QList<std::pair<int, int>> m_cells;
};

} // namespace

FilterField::FilterField(TrackTableModel *model, QTableView *table, TrackFind *find)
    : m_model(model)
    , m_table(table)
    , m_find(find)
{
    setPlaceholderText(tr("Filter"));
    setAccessibleName(tr("Filter"));
    setToolTip(tr("Shows only the tracks that have these words"));
    setClearButtonEnabled(true);
    setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    connect(this, &QLineEdit::textChanged, this, &FilterField::filter);
}

void FilterField::setShowsOnlyMatches(bool shows)
{
    m_showsOnlyMatches = shows;
    filter();
}

/// Among all tracks: those that are hidden now may be wanted again.
void FilterField::filter()
{
    const KeptSelection kept(*m_model, *m_table);
    const auto words = std::make_shared<const TrackFilter>(text());
    m_model->setFilter(text().isEmpty() ? std::function<bool(const Track &)>()
                                        : [words](const Track &track) { return words->accepts(track); });
    if (m_showsOnlyMatches) {
        QSet<int> found;
        for (const TrackFind::Match &match : m_find->matches())
            found.insert(m_model->track(match.row).id);
        m_model->setFilter([found](const Track &track) { return found.contains(track.id); });
    }
    kept.restore();
    Q_EMIT filtered();
}

void FilterField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        clear();
        m_table->setFocus(Qt::OtherFocusReason);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        m_table->setFocus(Qt::OtherFocusReason);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
