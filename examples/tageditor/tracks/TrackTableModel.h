// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TagChanges.h>

#include <QAbstractTableModel>
#include <QHash>
#include <QSet>

#include <functional>
#include <vector>

/// A text for one cell of a track, which is named by its id because rows may be sorted meanwhile.
struct TextChange {
    int trackId = -1;
    TrackField field = TrackField::FileName;
    QString text;
};

template <typename Value>
struct ValueChange {
    int trackId = -1;
    Value before;
    Value after;
};

/// The artwork of a track, encoded; empty bytes for none.
using ArtworkChange = ValueChange<QByteArray>;

/// All tags of a track's file that no field shows.
using OtherTagsChange = ValueChange<OtherTags>;

/// The tracks as a table: a row a track, a column a field and, behind these, what else is known of it. Rows are only ever added behind the others,
/// whatever the table was sorted by; sort() puts them in their places.
class TrackTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        IsUnreadableRole = Qt::UserRole, ///< bool
        ErrorRole, ///< why the row's file could not be read
    };

    using QAbstractTableModel::QAbstractTableModel;

    const Track &track(int row) const { return m_tracks.at(m_shown[size_t(row)]); }
    int numberOfUnreadable() const { return m_numberOfUnreadable; }

    /// All of them, those too that the filter hides, as they were added.
    const QList<Track> &tracks() const { return m_tracks; }
    bool hasTrack(int trackId) const { return placeOf(trackId) >= 0; }
    const Track &trackWithId(int trackId) const { return m_tracks.at(placeOf(trackId)); }

    /// -1 for a track that is hidden, or not there any more.
    int rowOfTrack(int trackId) const;

    /// Shows only tracks that \a filter accepts; all of them with none. Which those are is settled now, and for
    /// others as they are added: a row does not go while its texts are changed.
    void setFilter(std::function<bool(const Track &)> filter);

    /// Texts that may be changed are those of the tags, in files that could be read.
    bool isEditable(int row, TrackField field) const { return isEditable(track(row), field); }
    static bool isEditable(const Track &track, TrackField field);

    /// Those of \a changes that make a difference, each with its text as the field takes it: years and track
    /// numbers without spaces around them. What a file's tags cannot hold shows when it is saved.
    QList<TextChange> possibleChanges(const QList<TextChange> &changes) const;

    /// Changes all of them at once, and returns what changes them back. Rows stay where they are, whatever
    /// the table was sorted by, so that nothing jumps from under its user.
    QList<TextChange> setTexts(const QList<TextChange> &changes);

    /// Where the file of a track is now, and what it is called.
    void setPath(int trackId, const std::filesystem::path &path);

    /// A track whose file is in the trash has no row, until it comes back: behind the others then.
    void setTrashed(int trackId, bool isTrashed);
    int numberOfTracks() const { return int(m_tracks.size() - m_trashed.size()); }

    /// Shows what was read again from the track's file.
    void replaceTrack(int trackId, const Track &track);

    /// Changes all of them at once.
    void setArtwork(const QList<ArtworkChange> &changes);
    /// What is to be written into the file, empty bytes to remove it; nil where it stays as it is.
    std::optional<QByteArray> changedArtwork(int trackId) const;

    /// The same for tags that no field shows.
    void setOtherTags(const QList<OtherTagsChange> &changes);
    std::optional<OtherTags> changedOtherTags(int trackId) const;

    /// Whether a text, another tag or the artwork differs from what the file holds.
    bool hasChanges() const
    {
        return !m_savedTexts.isEmpty() || !m_artwork.isEmpty() || !m_otherTags.isEmpty();
    }
    bool hasChanges(int trackId) const;
    bool isChanged(int row, TrackField field) const;

    /// The ids of the changed tracks, in the order of the rows; and what is to be written into their files.
    QList<int> changedTracks() const;
    TagChanges changes(int trackId) const;

    /// The file holds the texts and the artwork of the track now. \a track was read from it: other texts may be
    /// in it, too, that were not known here.
    void setSaved(int trackId, const Track &track);

    /// What was changed is forgotten: the track is as its file, which \a track was read from.
    void setReverted(int trackId, const Track &track);

    void append(const QList<Track> &tracks);
    void clear();

    static QString titleForField(TrackField field);
    static constexpr bool isField(int column) { return column >= 0 && column < TrackFieldCount; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Changes nothing itself, so that whatever is changed can be undone: see textEntered().
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /// By a column's text or number or, for a \a column that is none, by path.
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    /// The user has typed a text into a cell.
    void textEntered(const TextChange &change);
    void artworkChanged();

    /// There are no tracks any more, and no changes of them.
    void cleared();

    /// Of some track, shown or not, it may be another answer whether it is changed.
    void changesChanged();

private:
    using Cell = std::pair<int, int>; ///< a track's id and a column

    int placeOf(int trackId) const;
    template <typename Value>
    void setValues(QHash<int, ValueChange<Value>> &values, const QList<ValueChange<Value>> &changes);
    QString setText(Track &track, TrackField field, const QString &text);
    void forgetChanges(int trackId);
    void showRow(int trackId, const QList<int> &roles = {});
    std::vector<int> orderBy(int column, Qt::SortOrder order) const;
    void showBehind(std::vector<int> places);
    void arrange();
    void rearrange();

    QList<Track> m_tracks; ///< a track's place is its id less m_firstId
    std::vector<int> m_sorted; ///< the places in the order that was asked for
    std::vector<bool> m_accepted; ///< by the filter; of each place
    QSet<int> m_trashed; ///< places
    std::vector<int> m_shown; ///< the places that have a row
    std::vector<int> m_rows; ///< of each place; -1 for none
    std::function<bool(const Track &)> m_filter;
    int m_firstId = 0; ///< ids are not used again for other tracks
    QHash<Cell, QString> m_savedTexts; ///< of the cells that differ from them
    QHash<int, OtherTagsChange> m_otherTags; ///< likewise
    QHash<int, ArtworkChange> m_artwork; ///< of the tracks whose files hold another one, by their ids
    int m_numberOfUnreadable = 0;
};
