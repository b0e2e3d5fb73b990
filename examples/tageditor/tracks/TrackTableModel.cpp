// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TrackTableModel.h>

#include <tageditor/tracks/NaturalOrder.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackInfo.h>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// Spaces around a number or date are nothing that was meant.
QString asTaken(TrackField field, const QString &text) { return isNumber(field) ? text.trimmed() : text; }

/// "7/12" is what is typed for the seventh of twelve.
QList<TextChange> apart(const TextChange &change)
{
    const std::optional<TrackField> total = totalOf(change.field);
    const qsizetype slash = change.text.indexOf(u'/');
    if (!total || slash < 0)
        return {change};
    return {{change.trackId, change.field, change.text.first(slash)},
            {change.trackId, *total, change.text.sliced(slash + 1)}};
}

/// What is not known comes last, as empty texts do.
std::vector<int> orderByNumber(const QList<Track> &tracks, TrackFact fact, Qt::SortOrder order)
{
    std::vector<int> places(size_t(tracks.size()));
    std::iota(places.begin(), places.end(), 0);
    std::ranges::stable_sort(places, {}, [&](int place) {
        const qint64 number = TrackInfo::number(tracks.at(place), fact).value_or(0);
        return std::pair(number == 0, order == Qt::AscendingOrder ? number : -number);
    });
    return places;
}

/// Those that differ.
OtherTags otherTagsToWrite(const OtherTagsChange &change)
{
    OtherTags tags;
    for (const QString &key : change.before.keys() + change.after.keys()) {
        if (change.before.value(key) != change.after.value(key))
            tags.insert(key, change.after.value(key));
    }
    return tags;
}

} // namespace

void TrackTableModel::append(const QList<Track> &tracks)
{
    std::vector<int> places;
    for (const Track &track : tracks) {
        const int place = int(m_tracks.size());
        m_tracks.append(track);
        m_tracks.last().id = m_firstId + place; // nothing but the order of adding; the rows may be sorted
        m_sorted.push_back(place);
        m_accepted.push_back(!m_filter || m_filter(track));
        m_rows.push_back(-1);
        places.push_back(place);
    }
    m_numberOfUnreadable += int(std::ranges::count(tracks, false, &Track::isReadable));
    showBehind(std::move(places));
}

void TrackTableModel::clear()
{
    beginResetModel();
    m_firstId += int(m_tracks.size());
    m_savedTexts.clear();
    m_artwork.clear();
    m_otherTags.clear();
    m_tracks.clear();
    m_sorted.clear();
    m_accepted.clear();
    m_trashed.clear();
    arrange();
    m_numberOfUnreadable = 0;
    endResetModel();
    Q_EMIT cleared();
    Q_EMIT changesChanged();
}

int TrackTableModel::placeOf(int trackId) const
{
    const int place = trackId - m_firstId;
    return place >= 0 && place < m_tracks.size() ? place : -1;
}

int TrackTableModel::rowOfTrack(int trackId) const
{
    const int place = placeOf(trackId);
    return place < 0 ? -1 : m_rows[size_t(place)];
}

void TrackTableModel::setFilter(std::function<bool(const Track &)> filter)
{
    m_filter = std::move(filter);
    beginResetModel();
    for (size_t place = 0; place < m_accepted.size(); ++place)
        m_accepted[place] = !m_filter || m_filter(m_tracks.at(qsizetype(place)));
    arrange();
    endResetModel();
}

bool TrackTableModel::isEditable(const Track &track, TrackField field)
{
    return field != TrackField::FileName && isField(int(field)) && track.isReadable();
}

QList<TextChange> TrackTableModel::possibleChanges(const QList<TextChange> &changes) const
{
    QList<TextChange> possible;
    QList<TextChange> all;
    for (const TextChange &change : changes)
        all += apart(change);
    for (const auto &[id, field, wanted] : std::as_const(all)) {
        if (!hasTrack(id) || !isEditable(trackWithId(id), field))
            continue;
        const QString text = asTaken(field, wanted);
        if (text != trackWithId(id).text(field))
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
        if (!hasTrack(id))
            continue;
        reverse.prepend({id, field, setText(m_tracks[placeOf(id)], field, text)});
        const int row = rowOfTrack(id);
        first = row < 0 ? first : std::min(first, row);
        last = std::max(last, row);
    }
    if (last >= 0)
        Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
    Q_EMIT changesChanged();
    return reverse;
}

void TrackTableModel::showRow(int trackId, const QList<int> &roles)
{
    if (const int row = rowOfTrack(trackId); row >= 0)
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1), roles);
}

void TrackTableModel::setPath(int trackId, const std::filesystem::path &path)
{
    if (!hasTrack(trackId))
        return;
    Track &track = m_tracks[placeOf(trackId)];
    track.path = path;
    const std::optional<FileStamp> now = FileStamp::of(path);
    if (track.stamp && now && track.stamp->size == now->size && track.stamp->modified == now->modified)
        track.stamp = now; // another volume has another inode
    track.text(TrackField::FileName) = displayedPath(path.filename());
    showRow(trackId);
}

void TrackTableModel::setTrashed(int trackId, bool isTrashed)
{
    const int place = placeOf(trackId);
    if (place < 0 || m_trashed.contains(place) == isTrashed)
        return;
    if (const int row = rowOfTrack(trackId); isTrashed) {
        m_trashed.insert(place);
        if (row < 0)
            return;
        beginRemoveRows({}, row, row);
        m_shown.erase(m_shown.begin() + row);
        m_rows[size_t(place)] = -1;
        for (int next = row; next < rowCount(); ++next)
            m_rows[size_t(m_shown[size_t(next)])] = next;
        endRemoveRows();
    } else {
        m_trashed.remove(place);
        showBehind({place});
    }
}

/// Of these places, those that the filter accepts.
void TrackTableModel::showBehind(std::vector<int> places)
{
    std::erase_if(places, [this](int place) { return !m_accepted[size_t(place)]; });
    if (places.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + int(places.size()) - 1);
    for (const int place : places) {
        m_rows[size_t(place)] = rowCount();
        m_shown.push_back(place);
    }
    endInsertRows();
}

void TrackTableModel::replaceTrack(int trackId, const Track &track)
{
    Track &old = m_tracks[placeOf(trackId)];
    m_numberOfUnreadable += int(!track.isReadable()) - int(!old.isReadable());
    old = track;
    old.id = trackId;
    showRow(trackId);
    Q_EMIT artworkChanged();
}

void TrackTableModel::setReverted(int trackId, const Track &track)
{
    forgetChanges(trackId);
    if (hasTrack(trackId))
        replaceTrack(trackId, track);
    Q_EMIT changesChanged();
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
    m_otherTags.remove(trackId);
}

bool TrackTableModel::hasChanges(int trackId) const
{
    for (int field = 0; field < TrackFieldCount; ++field) {
        if (m_savedTexts.contains({trackId, field}))
            return true;
    }
    return m_artwork.contains(trackId) || m_otherTags.contains(trackId);
}

QList<int> TrackTableModel::changedTracks() const
{
    QList<int> ids;
    for (auto cell = m_savedTexts.keyBegin(); cell != m_savedTexts.keyEnd(); ++cell)
        ids.append(cell->first);
    ids += m_artwork.keys() + m_otherTags.keys();
    std::ranges::sort(ids, {}, [this](int id) { return std::pair(rowOfTrack(id), id); });
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}

TagChanges TrackTableModel::changes(int trackId) const
{
    TagChanges changes{{}, changedArtwork(trackId), otherTagsToWrite(m_otherTags.value(trackId))};
    for (int field = 0; field < TrackFieldCount; ++field) {
        if (m_savedTexts.contains({trackId, field}))
            changes.texts.insert(TrackField(field), trackWithId(trackId).text(TrackField(field)));
    }
    return changes;
}

void TrackTableModel::setSaved(int trackId, const Track &track)
{
    forgetChanges(trackId);
    if (hasTrack(trackId)) {
        Track &old = m_tracks[placeOf(trackId)];
        const bool hasNews = track.fields != old.fields;
        old = track;
        old.id = trackId;
        showRow(trackId, hasNews ? QList<int>() : QList<int>{Qt::FontRole});
    }
    Q_EMIT changesChanged();
}

/// What the file holds is kept from the first change on, and forgotten when it is as before.
template <typename Value>
void TrackTableModel::setValues(QHash<int, ValueChange<Value>> &values,
                                const QList<ValueChange<Value>> &changes)
{
    for (const ValueChange<Value> &change : changes) {
        if (!hasTrack(change.trackId))
            continue;
        const Value inFile = values.value(change.trackId, change).before;
        if (inFile == change.after)
            values.remove(change.trackId);
        else
            values.insert(change.trackId, {change.trackId, inFile, change.after});
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::FontRole});
    Q_EMIT changesChanged();
}

void TrackTableModel::setArtwork(const QList<ArtworkChange> &changes)
{
    setValues(m_artwork, changes);
    Q_EMIT artworkChanged();
}

void TrackTableModel::setOtherTags(const QList<OtherTagsChange> &changes) { setValues(m_otherTags, changes); }

std::optional<OtherTags> TrackTableModel::changedOtherTags(int trackId) const
{
    const auto found = m_otherTags.constFind(trackId);
    return found == m_otherTags.cend() ? std::nullopt : std::optional(found->after);
}

std::optional<QByteArray> TrackTableModel::changedArtwork(int trackId) const
{
    const auto found = m_artwork.constFind(trackId);
    return found == m_artwork.cend() ? std::nullopt : std::optional(found->after);
}

int TrackTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int TrackTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : TrackFieldCount + TrackFactCount;
}

void TrackTableModel::sort(int column, Qt::SortOrder order)
{
    m_sorted = orderBy(column, order);
    rearrange();
}

std::vector<int> TrackTableModel::orderBy(int column, Qt::SortOrder order) const
{
    const TrackFact fact{column - TrackFieldCount};
    const bool byPath = column < 0 || column >= columnCount();
    if (!byPath && !isField(column) && TrackInfo::number({}, fact))
        return orderByNumber(m_tracks, fact, order);
    QStringList texts;
    for (const Track &track : m_tracks) {
        if (byPath)
            texts.append(displayedPath(track.path));
        else
            texts.append(isField(column) ? track.text(TrackField(column)) : TrackInfo::text(track, fact));
    }
    return naturalOrder(texts, byPath ? Qt::AscendingOrder : order);
}

/// What has a row, and where, by the order and the filter.
void TrackTableModel::arrange()
{
    m_shown.clear();
    m_rows.assign(size_t(m_tracks.size()), -1);
    for (const int place : m_sorted) {
        if (!m_accepted[size_t(place)] || m_trashed.contains(place))
            continue;
        m_rows[size_t(place)] = rowCount();
        m_shown.push_back(place);
    }
}

/// The same tracks in another order.
void TrackTableModel::rearrange()
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> before = std::exchange(m_shown, {});
    arrange();
    const QModelIndexList indexes = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &old : indexes)
        moved.append(index(m_rows[size_t(before[size_t(old.row())])], old.column()));
    changePersistentIndexList(indexes, moved);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}
