// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QHash>
#include <QModelIndex>

#include <vector>

/// The texts of a model's cells as one text. A cell takes one unit more than its text, an empty one nothing.
/// What it keeps is the end of every row, taken in anew when it is asked for, so that a burst of changes
/// costs no more than one.
class ZEVItemModelText {
public:
    explicit ZEVItemModelText(const QAbstractItemModel &model)
        : m_model(model)
    {
    }

    const QList<int> &columns() const { return m_columns; }
    void setColumns(const QList<int> &columns);
    void setRole(int role);
    int role() const { return m_role; }

    void noteStructureChange();
    void noteDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight);

    qsizetype length();

    /// The text of the cell that holds \a index, and its place; an empty range where there is none.
    QString cellAt(qsizetype index, ZEVRange &place, QModelIndex *found = nullptr);

    /// Of length 0 for an empty cell, or one that is not searched.
    ZEVRange placeOfCell(const QModelIndex &wanted);

    QString text(const QModelIndex &cell) const;

private:
    void update()
    {
        if (m_isChanged)
            measure();
    }
    void measure();
    void collectRows(const QModelIndex &parent);
    int columnCount(const QModelIndex &row) const;
    QModelIndex cell(size_t row, int position) const;
    qsizetype rowLength(size_t row) const;
    qsizetype rowStart(size_t row) const { return row == 0 ? 0 : m_ends[row - 1]; }
    size_t rowOfCell(const QModelIndex &cell) const;

    struct Position {
        size_t row = 0;
        int column = 0; ///< among those that are searched
        qsizetype location = 0;
    };

    const QAbstractItemModel &m_model;
    QList<int> m_columns;
    int m_role = Qt::DisplayRole;
    std::vector<QModelIndex> m_rows; ///< the first cell of each
    QHash<QModelIndex, size_t> m_rowNumbers; ///< only for a tree; otherwise the number is the row itself
    std::vector<qsizetype> m_lengths; ///< of each row, or -1 until it is measured
    std::vector<qsizetype> m_ends;
    Position m_next; ///< where a walk goes on
    bool m_isChanged = true;
    bool m_rowsChanged = true;
};
