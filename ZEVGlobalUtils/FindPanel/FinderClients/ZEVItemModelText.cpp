// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelText_p.h>

#include <QAbstractItemModel>

#include <algorithm>

namespace {

qsizetype extent(const QString &text) { return text.isEmpty() ? 0 : text.size() + 1; }

} // namespace

void ZEVItemModelText::setColumns(const QList<int> &columns)
{
    m_columns = columns;
    noteStructureChange();
}

void ZEVItemModelText::setRole(int role)
{
    m_role = role;
    noteStructureChange();
}

void ZEVItemModelText::noteStructureChange()
{
    m_isChanged = true;
    m_rowsChanged = true;
}

void ZEVItemModelText::noteDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    m_isChanged = true;
    if (m_rowsChanged)
        return;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const size_t number = rowOfCell(topLeft.sibling(row, 0));
        if (number < m_lengths.size())
            m_lengths[number] = -1;
    }
}

void ZEVItemModelText::measure()
{
    if (m_rowsChanged) {
        m_rows.clear();
        m_rowNumbers.clear();
        collectRows({});
        m_lengths.assign(m_rows.size(), -1);
        m_ends.resize(m_rows.size());
        if (m_rows.size() > size_t(m_model.rowCount()))
            for (size_t row = 0; row < m_rows.size(); ++row)
                m_rowNumbers.insert(m_rows[row], row);
    }
    qsizetype end = 0;
    for (size_t row = 0; row < m_rows.size(); ++row) {
        if (m_lengths[row] < 0)
            m_lengths[row] = rowLength(row);
        m_ends[row] = end += m_lengths[row];
    }
    m_next = {};
    m_isChanged = m_rowsChanged = false;
}

void ZEVItemModelText::collectRows(const QModelIndex &parent)
{
    const int count = m_model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        m_rows.push_back(m_model.index(row, 0, parent));
        const QModelIndex first = m_rows.back();
        if (m_model.hasChildren(first))
            collectRows(first);
    }
}

int ZEVItemModelText::columnCount(const QModelIndex &row) const
{
    return int(m_columns.isEmpty() ? m_model.columnCount(row.parent()) : m_columns.size());
}

QModelIndex ZEVItemModelText::cell(size_t row, int position) const
{
    return m_rows[row].siblingAtColumn(m_columns.isEmpty() ? position : m_columns.at(position));
}

QString ZEVItemModelText::text(const QModelIndex &cell) const
{
    return m_model.data(cell, m_role).toString();
}

qsizetype ZEVItemModelText::rowLength(size_t row) const
{
    qsizetype length = 0;
    for (int column = 0, count = columnCount(m_rows[row]); column < count; ++column)
        length += extent(text(cell(row, column)));
    return length;
}

size_t ZEVItemModelText::rowOfCell(const QModelIndex &cell) const
{
    if (m_rowNumbers.isEmpty())
        return cell.parent().isValid() ? m_rows.size() : size_t(cell.row());
    return m_rowNumbers.value(cell.siblingAtColumn(0), m_rows.size());
}

qsizetype ZEVItemModelText::length()
{
    update();
    return m_ends.empty() ? 0 : m_ends.back();
}

/// A walk asks for one cell after the other, so the place behind the last one is remembered.
QString ZEVItemModelText::cellAt(qsizetype index, ZEVRange &place, QModelIndex *found)
{
    update();
    Position position = m_next;
    if (index != position.location || index == 0) {
        const auto row = size_t(std::ranges::upper_bound(m_ends, index) - m_ends.begin());
        position = {row, 0, row < m_rows.size() ? rowStart(row) : 0};
    }
    for (; position.row < m_rows.size(); ++position.row, position.column = 0) {
        const int count = columnCount(m_rows[position.row]);
        while (position.column < count) {
            const QModelIndex current = cell(position.row, position.column++);
            QString string = text(current);
            place = {position.location, extent(string)};
            position.location = place.end();
            if (index >= place.end())
                continue;
            m_next = position;
            if (found)
                *found = current;
            return string;
        }
    }
    place = {index, 0};
    return {};
}

ZEVRange ZEVItemModelText::placeOfCell(const QModelIndex &wanted)
{
    update();
    const size_t row = wanted.isValid() ? rowOfCell(wanted) : m_rows.size();
    if (row >= m_rows.size())
        return {};
    qsizetype location = rowStart(row);
    for (int column = 0, count = columnCount(m_rows[row]); column < count; ++column) {
        const QModelIndex current = cell(row, column);
        const qsizetype length = extent(text(current));
        if (current == wanted)
            return {location, length};
        location += length;
    }
    return {location, 0};
}
