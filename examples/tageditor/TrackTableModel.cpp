// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/TrackTableModel.h>

#include <tageditor/NaturalOrder.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The reason stands where the title would be.
QString shownText(const Track &track, TrackField field)
{
    return field == TrackField::Title && !track.isReadable() ? track.error : track.text(field);
}

QString toolTip(const Track &track, TrackField field)
{
    const QString path = displayedPath(track.path);
    if (!track.isReadable())
        return path + u'\n' + track.error;
    return field == TrackField::FileName ? path : track.text(field);
}

/// Tool tips guess at rich text, and what stands in a file's name or tags must never be taken for that.
QString plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace

void TrackTableModel::append(const QList<Track> &tracks)
{
    if (tracks.isEmpty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + int(tracks.size()) - 1);
    m_tracks += tracks;
    m_numberOfUnreadable += int(std::ranges::count(tracks, false, &Track::isReadable));
    endInsertRows();
}

void TrackTableModel::clear()
{
    beginResetModel();
    m_tracks.clear();
    m_numberOfUnreadable = 0;
    endResetModel();
}

QString TrackTableModel::titleForField(TrackField field)
{
    switch (field) {
    case TrackField::FileName:
        return tr("File Name");
    case TrackField::Title:
        return tr("Title");
    case TrackField::Artist:
        return tr("Artist");
    case TrackField::Album:
        return tr("Album");
    case TrackField::Year:
        return tr("Year");
    case TrackField::Number:
        return tr("Track");
    case TrackField::Genre:
        return tr("Genre");
    case TrackField::Comment:
        return tr("Comment");
    }
    return {};
}

int TrackTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_tracks.size());
}

int TrackTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : TrackFieldCount;
}

QVariant TrackTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Track &track = m_tracks.at(index.row());
    const TrackField field{index.column()};
    switch (role) {
    case Qt::DisplayRole:
        return shownText(track, field);
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(track, field));
    case IsUnreadableRole:
        return !track.isReadable();
    default:
        return {};
    }
}

QVariant TrackTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? titleForField(TrackField(section)) : QVariant();
}

void TrackTableModel::sort(int column, Qt::SortOrder order)
{
    const bool byPath = column < 0 || column >= TrackFieldCount;
    QStringList texts;
    for (const Track &track : std::as_const(m_tracks))
        texts.append(byPath ? displayedPath(track.path) : track.text(TrackField(column)));
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    rearrange(naturalOrder(texts, byPath ? Qt::AscendingOrder : order));
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void TrackTableModel::rearrange(const std::vector<int> &oldRows)
{
    QList<Track> tracks;
    tracks.reserve(m_tracks.size());
    std::vector<int> newRows(oldRows.size());
    for (const int oldRow : oldRows) {
        newRows[size_t(oldRow)] = int(tracks.size());
        tracks.append(std::move(m_tracks[oldRow]));
    }
    m_tracks = std::move(tracks);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &old : before)
        after.append(index(newRows[size_t(old.row())], old.column()));
    changePersistentIndexList(before, after);
}
