// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TrackTableModel.h>

#include <tageditor/tracks/NaturalOrder.h>
#include <tageditor/tracks/TagValues.h>

#include <QFont>
#include <QTextDocument>

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
    const QString lines = QString(text).replace(TagValues::Separator, u'\n');
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(lines, Qt::WhiteSpaceNormal);
}

bool isNumber(TrackField field) { return field == TrackField::Year || field == TrackField::Number; }

/// Spaces around a number or date are nothing that was meant.
QString asTaken(TrackField field, const QString &text) { return isNumber(field) ? text.trimmed() : text; }

QFont boldFont()
{
    QFont font;
    font.setBold(true);
    return font;
}

} // namespace

void TrackTableModel::append(const QList<Track> &tracks)
{
    if (tracks.isEmpty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + int(tracks.size()) - 1);
    m_tracks += tracks;
    for (int row = first; row < rowCount(); ++row) {
        m_tracks[row].id = m_firstId + row; // nothing but the order of adding; the rows may be sorted
        m_rows.push_back(row);
    }
    m_numberOfUnreadable += int(std::ranges::count(tracks, false, &Track::isReadable));
    endInsertRows();
}

void TrackTableModel::clear()
{
    beginResetModel();
    m_firstId += rowCount();
    m_rows.clear();
    m_savedTexts.clear();
    m_artwork.clear();
    m_tracks.clear();
    m_numberOfUnreadable = 0;
    endResetModel();
}

int TrackTableModel::rowOfTrack(int trackId) const
{
    const int place = trackId - m_firstId;
    return place >= 0 && place < rowCount() ? m_rows[size_t(place)] : -1;
}

bool TrackTableModel::isEditable(int row, TrackField field) const
{
    return field != TrackField::FileName && track(row).isReadable();
}

QList<TextChange> TrackTableModel::possibleChanges(const QList<TextChange> &changes) const
{
    QList<TextChange> possible;
    for (const auto &[id, field, wanted] : changes) {
        const int row = rowOfTrack(id);
        if (row < 0 || !isEditable(row, field))
            continue;
        const QString text = asTaken(field, wanted);
        if (text != track(row).text(field))
            possible.append({id, field, text});
    }
    return possible;
}

QList<TextChange> TrackTableModel::setTexts(const QList<TextChange> &changes)
{
    QList<TextChange> reverse;
    int first = rowCount();
    int last = -1;
    for (const auto &[id, field, text] : changes) {
        const int row = rowOfTrack(id);
        if (row < 0)
            continue;
        reverse.prepend({id, field, setText(m_tracks[row], field, text)});
        first = std::min(first, row);
        last = std::max(last, row);
    }
    if (last >= 0)
        Q_EMIT dataChanged(index(first, 0), index(last, TrackFieldCount - 1));
    return reverse;
}

void TrackTableModel::setPath(int trackId, const std::filesystem::path &path)
{
    const int row = rowOfTrack(trackId);
    if (row < 0)
        return;
    m_tracks[row].path = path;
    const std::optional<FileStamp> before = m_tracks.at(row).stamp;
    const std::optional<FileStamp> now = FileStamp::of(path);
    if (before && now && before->size == now->size && before->modified == now->modified)
        m_tracks[row].stamp = now; // another volume has another inode
    m_tracks[row].text(TrackField::FileName) = displayedPath(path.filename());
    Q_EMIT dataChanged(index(row, int(TrackField::FileName)), index(row, int(TrackField::FileName)));
}

void TrackTableModel::replaceTrack(int row, const Track &track)
{
    m_numberOfUnreadable += int(!track.isReadable()) - int(!m_tracks.at(row).isReadable());
    const int id = std::exchange(m_tracks[row], track).id;
    m_tracks[row].id = id;
    Q_EMIT dataChanged(index(row, 0), index(row, TrackFieldCount - 1));
    Q_EMIT artworkChanged();
}

void TrackTableModel::setReverted(int trackId, const Track &track)
{
    forgetChanges(trackId);
    if (const int row = rowOfTrack(trackId); row >= 0)
        replaceTrack(row, track);
}

/// The text that stood there before.
QString TrackTableModel::setText(Track &track, TrackField field, const QString &text)
{
    QString previous = std::exchange(track.text(field), text);
    const Cell cell(track.id, int(field));
    const auto saved = m_savedTexts.constFind(cell);
    if (saved == m_savedTexts.cend() && text != previous)
        m_savedTexts.insert(cell, previous);
    else if (saved != m_savedTexts.cend() && *saved == text)
        m_savedTexts.erase(saved);
    return previous;
}

bool TrackTableModel::isChanged(int row, TrackField field) const
{
    return m_savedTexts.contains({track(row).id, int(field)});
}

void TrackTableModel::forgetChanges(int trackId)
{
    m_savedTexts.removeIf([trackId](const auto &cell) { return cell.key().first == trackId; });
    m_artwork.remove(trackId);
}

bool TrackTableModel::hasChanges(int trackId) const
{
    for (int field = 0; field < TrackFieldCount; ++field) {
        if (m_savedTexts.contains({trackId, field}))
            return true;
    }
    return m_artwork.contains(trackId);
}

QList<int> TrackTableModel::changedTracks() const
{
    QList<int> ids;
    for (auto cell = m_savedTexts.keyBegin(); cell != m_savedTexts.keyEnd(); ++cell)
        ids.append(cell->first);
    ids += m_artwork.keys();
    std::ranges::sort(ids, {}, [this](int id) { return rowOfTrack(id); });
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}

QHash<TrackField, QString> TrackTableModel::changedTexts(int trackId) const
{
    QHash<TrackField, QString> texts;
    for (int field = 0; field < TrackFieldCount; ++field) {
        if (m_savedTexts.contains({trackId, field}))
            texts.insert(TrackField(field), track(rowOfTrack(trackId)).text(TrackField(field)));
    }
    return texts;
}

void TrackTableModel::setSaved(int trackId, const Track &track)
{
    const int row = rowOfTrack(trackId);
    forgetChanges(trackId);
    if (row < 0)
        return;
    const bool hasNews = track.fields != m_tracks.at(row).fields;
    m_tracks[row] = track;
    m_tracks[row].id = trackId;
    const QList<int> roles = hasNews ? QList<int>() : QList<int>{Qt::FontRole};
    Q_EMIT dataChanged(index(row, 0), index(row, TrackFieldCount - 1), roles);
}

void TrackTableModel::setArtwork(const QList<ArtworkChange> &changes)
{
    for (const ArtworkChange &change : changes) {
        if (rowOfTrack(change.trackId) < 0)
            continue;
        const QByteArray inFile = m_artwork.value(change.trackId, change).before;
        if (inFile == change.after)
            m_artwork.remove(change.trackId);
        else
            m_artwork.insert(change.trackId, {change.trackId, inFile, change.after});
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::FontRole});
    Q_EMIT artworkChanged();
}

std::optional<QByteArray> TrackTableModel::changedArtwork(int trackId) const
{
    const auto found = m_artwork.constFind(trackId);
    return found == m_artwork.cend() ? std::nullopt : std::optional(found->after);
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
    case Qt::EditRole:
        return track.text(field);
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(track, field));
    case Qt::FontRole:
        return isChanged(index.row(), field) ? boldFont() : QVariant();
    case Qt::AccessibleDescriptionRole:
        return isChanged(index.row(), field) ? tr("Changed, not saved") : QVariant();
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

Qt::ItemFlags TrackTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isEditable = index.isValid() && this->isEditable(index.row(), TrackField(index.column()));
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool TrackTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    Q_EMIT textEntered({track(index.row()).id, TrackField(index.column()), value.toString()});
    return true;
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
        m_rows[size_t(m_tracks[oldRow].id - m_firstId)] = int(tracks.size());
        tracks.append(std::move(m_tracks[oldRow]));
    }
    m_tracks = std::move(tracks);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &old : before)
        after.append(index(newRows[size_t(old.row())], old.column()));
    changePersistentIndexList(before, after);
}
