// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/ReplacePreviewModel.h>

#include <tageditor/tracks/Track.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>

#include <algorithm>

ReplacePreviewModel::ReplacePreviewModel(const ZEVReplacementPreview &preview,
                                         const ZEVItemModelFinderClient &client, QObject *parent)
    : PreviewModel(
        {TrackTableModel::titleForField(TrackField::FileName), tr("Field"), tr("Before"), tr("After")},
        parent)
    , m_preview(preview)
{
    for (const ZEVTextReplacement &replacement : preview.replacements) {
        ZEVRange range;
        const QModelIndex cell = client.cellOfRange(replacement.range, &range);
        add(replacement, cell, range);
    }
}

/// The replacements of a text follow each other, in its order.
void ReplacePreviewModel::add(const ZEVTextReplacement &replacement, const QModelIndex &cell,
                              const ZEVRange &range)
{
    if (m_rows.empty() || m_rows.back().cell != cell) {
        const QString text = cell.data(Qt::EditRole).toString();
        const qsizetype first = m_rows.empty() ? 0 : m_rows.back().first + m_rows.back().count;
        m_rows.push_back({cell, text, text, {}, {}, first});
    }
    Row &row = m_rows.back();
    const qsizetype growth = row.after.size() - row.before.size();
    row.after.replace(range.location + growth, range.length, replacement.after);
    row.marksBefore.append(range);
    row.marksAfter.append({range.location + growth, replacement.after.size()});
    ++row.count;
}

ZEVReplacementPreview ReplacePreviewModel::chosen() const
{
    ZEVReplacementPreview chosen{{}, m_preview.changeStamp};
    for (const Row &row : m_rows) {
        if (row.isChosen)
            chosen.replacements += m_preview.replacements.sliced(row.first, row.count);
    }
    return chosen;
}

int ReplacePreviewModel::numberOfChosen() const
{
    return int(std::ranges::count(m_rows, true, &Row::isChosen));
}

int ReplacePreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QString ReplacePreviewModel::text(const Row &row, int column) const
{
    switch (column) {
    case File:
        return row.cell.sibling(row.cell.row(), int(TrackField::FileName)).data().toString();
    case Field:
        return TrackTableModel::titleForField(TrackField(row.cell.column()));
    case Before:
        return row.before;
    default:
        return row.after;
    }
}

QVariant ReplacePreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(size_t(index.row()));
    if (role == Qt::DisplayRole)
        return text(row, index.column());
    if (role == Qt::CheckStateRole && index.column() == File)
        return row.isChosen ? Qt::Checked : Qt::Unchecked;
    if (role == ZEVHighlightDelegate::RangesRole && index.column() == Before)
        return QVariant::fromValue(row.marksBefore);
    if (role == ZEVHighlightDelegate::RangesRole && index.column() == After)
        return QVariant::fromValue(row.marksAfter);
    return {};
}

bool ReplacePreviewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    m_rows.at(size_t(index.row())).isChosen = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {role});
    Q_EMIT chosenChanged();
    return true;
}

Qt::ItemFlags ReplacePreviewModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = PreviewModel::flags(index);
    return index.column() == File ? flags | Qt::ItemIsUserCheckable : flags;
}
