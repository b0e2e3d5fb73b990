// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/Track.h>

#include <QAbstractTableModel>

/// The tracks as a table: a row a track, a column a field. Rows are only ever added behind the others,
/// whatever the table was sorted by; sort() puts them in their places.
class TrackTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        IsUnreadableRole = Qt::UserRole, ///< bool: the row shows why its file could not be read
    };

    using QAbstractTableModel::QAbstractTableModel;

    const Track &track(int row) const { return m_tracks.at(row); }
    int numberOfUnreadable() const { return m_numberOfUnreadable; }

    void append(const QList<Track> &tracks);
    void clear();

    static QString titleForField(TrackField field);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// By a column's text or, for a \a column that is none, by path.
    void sort(int column, Qt::SortOrder order) override;

private:
    void rearrange(const std::vector<int> &oldRows);

    QList<Track> m_tracks;
    int m_numberOfUnreadable = 0;
};
